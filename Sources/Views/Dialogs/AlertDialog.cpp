#include "Views/Dialogs/AlertDialog.hpp"

#include "KelDS/KelDialogController.hpp"
#include "Views/Screen/NavigationController.hpp"
#include "Views/Screen/ViewController.hpp"

namespace quillet {

void AlertDialog::show(const QString& title, const QString& body, const ViewController& viewController,
                       bool animated) const {
    const auto screen = viewController.originViewController();
    const auto* navigation = screen ? screen->navigationController() : nullptr;
    if (QQuickItem* cover = navigation ? navigation->coverArea() : nullptr) {
        kel::KelDialogController::present(std::make_unique<kel::KelDialogController>(title, body), *cover,
                                          animated);
    }
}

} // namespace quillet
