#include "SaleSummary/Screen/SaleSummaryView.hpp"

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
    send_.tap(*this, [delegate = delegate_] {
        if (const auto here = delegate.lock()) {
            here->didTapButton();
        }
    });
}

} // namespace quillet
