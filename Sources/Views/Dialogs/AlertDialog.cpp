#include "Views/Dialogs/AlertDialog.hpp"

#include "KelDS/KelDS.hpp"
#include "Platform/Screens/NavigationController.hpp"
#include "Views/Screen/ViewController.hpp"

namespace quillet {

void AlertDialog::show(const QString& title, const QString& body, const ViewController& viewController,
                       bool animated) const {
    const auto screen = viewController.originViewController();
    const auto* navigation = platform::NavigationController::of(screen.get());
    if (QQmlEngine* engine = navigation ? navigation->engine() : nullptr) {
        kel::KelDialogController::present(std::make_unique<kel::KelDialogController>(title, body), *engine,
                                          *navigation->coverArea(), animated);
    }
}

} // namespace quillet
