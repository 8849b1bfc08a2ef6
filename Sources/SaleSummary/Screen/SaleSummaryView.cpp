#include "SaleSummary/Screen/SaleSummaryView.hpp"

#include "Resources/Localization.hpp"
#include "SaleSummary/Presenters/DayFormatter.hpp"

#include <utility>

namespace quillet {

namespace {

/// Splits "Caption: value" behind its only colon, so that the presenters stay the one source of these texts.
Captioned captioned(const QString& text) {
    const auto value = text.indexOf(QLatin1String(": ")) + 2;
    return {text.left(value), text.mid(value)};
}

QString shortCode(const Cycle& cycle) {
    return QString::fromStdString(Cycle::onlyCode(cycle));
}

} // namespace

SaleSummaryView::SaleSummaryView(SaleSummaryPresenter presenter) : presenter_(std::move(presenter)) {}

void SaleSummaryView::setDelegate(std::weak_ptr<SaleSummaryViewDelegate> delegate) {
    delegate_ = std::move(delegate);
}

QString SaleSummaryView::tabTitle() const {
    return QStringLiteral("En Curso");
}

Captioned SaleSummaryView::cycle() const {
    const auto& cycle = presenter_.headerPresenter.cycle;
    return cycle ? cycleLabel(shortCode(*cycle)) : Captioned{};
}

QString SaleSummaryView::cycleStart() const {
    const auto& cycle = presenter_.headerPresenter.cycle;
    return cycle ? CyclePeriodPresenter{cycle->startDate, cycle->endDate}.startText() : QString();
}

QString SaleSummaryView::cycleEnd() const {
    const auto& cycle = presenter_.headerPresenter.cycle;
    return cycle ? CyclePeriodPresenter{cycle->startDate, cycle->endDate}.endText() : QString();
}

Captioned SaleSummaryView::pointsInProgress() const {
    return captioned(presenter_.headerPresenter.pointsInProgressPresenter.pointsText());
}

QString SaleSummaryView::orderTitle() const {
    return QStringLiteral("Resumen del Pedido:");
}

Captioned SaleSummaryView::orderCycle() const {
    const auto& cycle = presenter_.highlightedOrderPresenter.cycle;
    return cycle ? Captioned{QStringLiteral("Ciclo del pedido: "), shortCode(*cycle)} : Captioned{};
}

QString SaleSummaryView::orderDate() const {
    return localDay(presenter_.highlightedOrderPresenter.orderDate);
}

Captioned SaleSummaryView::totalOfProducts() const {
    return {QStringLiteral("Total de productos: "),
            QString::number(presenter_.highlightedOrderPresenter.totalOfProducts)};
}

Captioned SaleSummaryView::orderPoints() const {
    return captioned(presenter_.highlightedOrderPresenter.pointsOrderPresenter.pointsText());
}

QString SaleSummaryView::remember() const {
    return Localization::remember();
}

QString SaleSummaryView::reminder() const {
    return Localization::youCanKeepCollectingSales();
}

QString SaleSummaryView::sendProducts() const {
    return QStringLiteral("Enviar productos a mi carrito");
}

QString SaleSummaryView::sendProductsIdentifier() const {
    return QStringLiteral("Send products to my cart");
}

void SaleSummaryView::tapSendProducts() {
    if (const auto delegate = delegate_.lock()) {
        delegate->didTapButton();
    }
}

} // namespace quillet
