#pragma once

#include "Quillet/Orders.hpp"
#include "Views/Labels/PointsPresenter.hpp"

#include <cstdint>
#include <optional>

namespace quillet {

/// "Puntos del pedido: " and the points of the highlighted order.
struct OrderPointsPresenter final : PointsPresenter {
    explicit OrderPointsPresenter(std::uint64_t value) : points(value) {}
    [[nodiscard]] Captioned captioned() const override;
    std::uint64_t points;
};

/// "Puntos en curso: " and the points of all open orders.
struct PointsInProgressPresenter final : PointsPresenter {
    explicit PointsInProgressPresenter(std::uint64_t value) : points(value) {}
    [[nodiscard]] Captioned captioned() const override;
    std::uint64_t points;
};

struct CyclePeriodPresenter {
    Date startDate;
    Date endDate;

    /// "Inicio: " and the first day.
    [[nodiscard]] QString startText() const;
    /// "Cierre: " and the last day.
    [[nodiscard]] QString endText() const;
};

struct SaleSummaryHeaderPresenter {
    PointsInProgressPresenter pointsInProgressPresenter;
    std::optional<Cycle> cycle;
};

struct HighlightedOrderPresenter {
    OrderPointsPresenter pointsOrderPresenter;
    std::optional<Cycle> cycle;
    Date orderDate;
    std::uint64_t totalOfProducts = 0;
};

/// Everything that the summary shows.
struct SaleSummaryPresenter {
    SaleSummaryHeaderPresenter headerPresenter;
    HighlightedOrderPresenter highlightedOrderPresenter;
};

} // namespace quillet
