#pragma once

#include "SaleSummary/Presenters/SaleSummaryPresenter.hpp"
#include "Views/Labels/PointsLabel.hpp"

#include <memory>

namespace quillet {

/// The card of the customer's order. Without a cycle it has no cycle line; its status tag has a colour and no
/// text.
class HighlightedOrderView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString orderSummary READ orderSummary CONSTANT FINAL)
    Q_PROPERTY(quillet::Captioned orderCycle READ orderCycle CONSTANT FINAL)
    Q_PROPERTY(QString orderDate READ orderDate CONSTANT FINAL)
    Q_PROPERTY(quillet::Captioned totalProducts READ totalProducts CONSTANT FINAL)
    Q_PROPERTY(QObject* orderPointsLabel READ orderPointsLabel CONSTANT FINAL)

public:
    explicit HighlightedOrderView(HighlightedOrderPresenter presenter);

    [[nodiscard]] QString orderSummary() const { return QStringLiteral("Resumen del Pedido:"); }
    [[nodiscard]] Captioned orderCycle() const;
    /// The day on which the order was made, where the device is.
    [[nodiscard]] QString orderDate() const;
    [[nodiscard]] Captioned totalProducts() const;
    [[nodiscard]] PointsLabel* orderPointsLabel() const { return orderPointsLabel_.get(); }

private:
    HighlightedOrderPresenter presenter_;
    std::unique_ptr<PointsLabel> orderPointsLabel_;
};

} // namespace quillet
