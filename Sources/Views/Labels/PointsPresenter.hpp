#pragma once

#include <QString>

namespace quillet {

/// A number of points as a text.
class PointsPresenter {
public:
    virtual ~PointsPresenter() = default;
    [[nodiscard]] virtual QString pointsText() const = 0;
};

} // namespace quillet
