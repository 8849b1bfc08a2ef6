#pragma once

#include "Views/Labels/Captioned.hpp"

namespace quillet {

/// A number of points as a text.
class PointsPresenter {
public:
    virtual ~PointsPresenter() = default;
    [[nodiscard]] virtual Captioned captioned() const = 0;
    /// Caption and value in one.
    [[nodiscard]] QString pointsText() const { return captioned().plainText(); }
};

} // namespace quillet
