#include "SaleSummary/Screen/HighlightedOrderView.hpp"

#include "SaleSummary/Presenters/DayFormatter.hpp"

#include <utility>

namespace quillet {

HighlightedOrderView::HighlightedOrderView(HighlightedOrderPresenter presenter)
    : presenter_(std::move(presenter)),
      orderPointsLabel_(
          std::make_unique<PointsLabel>(presenter_.pointsOrderPresenter, kel::KelFonts::Subtitle1)) {}

Captioned HighlightedOrderView::orderCycleLabel() const {
    const auto& cycle = presenter_.cycle;
    return cycle ? Captioned{QStringLiteral("Ciclo del pedido: "),
                             QString::fromStdString(Cycle::onlyCode(*cycle))}
                 : Captioned{};
}

QString HighlightedOrderView::orderDateLabel() const {
    return localDay(presenter_.orderDate);
}

Captioned HighlightedOrderView::totalProductsLabel() const {
    return {QStringLiteral("Total de productos: "), QString::number(presenter_.totalOfProducts)};
}

} // namespace quillet
