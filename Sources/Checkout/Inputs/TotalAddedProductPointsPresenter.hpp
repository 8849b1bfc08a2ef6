#pragma once

#include "Views/Labels/PointsPresenter.hpp"

#include <cstdint>

namespace quillet {

/// The points sent in total; nothing at all for no points.
struct TotalAddedProductPointsPresenter final : PointsPresenter {
    explicit TotalAddedProductPointsPresenter(std::uint64_t value) : points(value) {}

    [[nodiscard]] Captioned captioned() const override {
        if (points == 0) {
            return {};
        }
        return {QString::number(points) + (points == 1 ? QStringLiteral(" punto enviado en total")
                                                       : QStringLiteral(" puntos enviados en total")),
                {}};
    }

    std::uint64_t points;
};

} // namespace quillet
