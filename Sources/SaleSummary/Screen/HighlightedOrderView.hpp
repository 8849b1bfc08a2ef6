#pragma once

#include "KelDS/KelDS.hpp"
#include "SaleSummary/Presenters/SaleSummaryPresenter.hpp"
#include "Views/Labels/PointsLabel.hpp"

#include <memory>

namespace quillet {

/// The card of the customer's order. Without a cycle it has no cycle line; its status tag has a colour and no
/// text.
class HighlightedOrderView final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of a SaleSummaryView")
    Q_PROPERTY(QString orderSummaryLabel READ orderSummaryLabel CONSTANT FINAL)
    Q_PROPERTY(kel::KelTagColor::Color orderStatusTag READ orderStatusTag CONSTANT FINAL)
    Q_PROPERTY(quillet::Captioned orderCycleLabel READ orderCycleLabel CONSTANT FINAL)
    Q_PROPERTY(QString orderDateLabel READ orderDateLabel CONSTANT FINAL)
    Q_PROPERTY(quillet::Captioned totalProductsLabel READ totalProductsLabel CONSTANT FINAL)
    Q_PROPERTY(quillet::Label* orderPointsLabel READ orderPointsLabel CONSTANT FINAL)

public:
    explicit HighlightedOrderView(HighlightedOrderPresenter presenter);

    [[nodiscard]] QString orderSummaryLabel() const { return QStringLiteral("Resumen del Pedido:"); }
    /// The colour of the tag that stands for the order; it has no text.
    [[nodiscard]] kel::KelTagColor::Color orderStatusTag() const { return kel::KelTagColor::Primary; }
    [[nodiscard]] Captioned orderCycleLabel() const;
    /// The day on which the order was made, where the device is.
    [[nodiscard]] QString orderDateLabel() const;
    [[nodiscard]] Captioned totalProductsLabel() const;
    [[nodiscard]] PointsLabel* orderPointsLabel() const { return orderPointsLabel_.get(); }

private:
    HighlightedOrderPresenter presenter_;
    std::unique_ptr<PointsLabel> orderPointsLabel_;
};

} // namespace quillet
