#pragma once

#include "Platform/Screens/ShapeLayer.hpp"

namespace quillet {

/// Adds the animations of the progress indicator's arc. Adding again replaces the running animation.
class ProgressIndicatorCircularAnimating {
public:
    virtual ~ProgressIndicatorCircularAnimating() = default;
    virtual void addRotationAnimation(platform::ShapeLayer& layer) const = 0;
    virtual void addSpringAnimation(platform::ShapeLayer& layer) const = 0;
};

/// Rotation: one turn in four seconds. Arc, repeated every 1.5 seconds: its end goes around the ring in the
/// first second while its start moves to 15 %; then the start follows to the end.
class ProgressIndicatorCircularAnimator final : public ProgressIndicatorCircularAnimating {
public:
    void addRotationAnimation(platform::ShapeLayer& layer) const override;
    void addSpringAnimation(platform::ShapeLayer& layer) const override;
};

} // namespace quillet
