#include "SaleSummary/Screen/SaleSummaryView.hpp"

#include <QScopedValueRollback>

#include <utility>

namespace quillet {

SaleSummaryView::SaleSummaryView(std::unique_ptr<ButtonCreating> buttonFactory,
                                 std::unique_ptr<Spacing> spacing, std::unique_ptr<Sizing> sizing,
                                 std::unique_ptr<Coloring> colors, SaleSummaryPresenter presenter)
    : buttonFactory_(std::move(buttonFactory)),
      spacing_(std::move(spacing)),
      sizing_(std::move(sizing)),
      colors_(std::move(colors)),
      presenter_(std::move(presenter)),
      headerView_(presenter_.headerPresenter),
      highlightedOrderView_(presenter_.highlightedOrderPresenter) {}

void SaleSummaryView::setDelegate(std::weak_ptr<SaleSummaryViewDelegate> delegate) {
    delegate_ = std::move(delegate);
}

Button SaleSummaryView::sendProductsButton() const {
    return buttonFactory_->contained(QStringLiteral("Enviar productos a mi carrito"),
                                     QStringLiteral("Send products to my cart"));
}

void SaleSummaryView::tapSendProducts() {
    // The host may run an event loop when it hears of the tap, and a second one would send the products twice.
    if (const auto delegate = delegate_.lock(); delegate && !isTapped_) {
        const QScopedValueRollback tapped(isTapped_, true);
        delegate->didTapButton();
    }
}

} // namespace quillet
