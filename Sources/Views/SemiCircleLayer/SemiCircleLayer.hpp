#pragma once

#include "Platform/Screens/ShapeLayer.hpp"

namespace quillet {

/// The moving arc of the progress indicator: a circle around the middle of its parent, stroked and not
/// filled.
class SemiCircleLayer final : public platform::ShapeLayer {
public:
    SemiCircleLayer(double diameter, const QRectF& parentLayerBounds);

    [[nodiscard]] double diameter() const { return diameter_; }
    [[nodiscard]] const QRectF& parentLayerBounds() const { return parentLayerBounds_; }

private:
    double diameter_;
    QRectF parentLayerBounds_;
};

} // namespace quillet
