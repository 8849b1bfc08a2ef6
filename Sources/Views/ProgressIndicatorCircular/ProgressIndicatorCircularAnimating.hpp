#pragma once

#include "Platform/Screens/ShapeLayer.hpp"

namespace quillet {

/// Sets the progress indicator's arc in motion. Adding again replaces what runs.
class ProgressIndicatorCircularAnimating {
public:
    virtual ~ProgressIndicatorCircularAnimating() = default;
    virtual void addRotationAnimation(platform::ShapeLayer& layer) const = 0;
    virtual void addSpringAnimation(platform::ShapeLayer& layer) const = 0;
};

/// One turn every four seconds; and in rounds of a second and a half, an arc whose head runs around the ring
/// in the first second while its tail creeps to 15 %, and whose tail then catches up.
class ProgressIndicatorCircularAnimator final : public ProgressIndicatorCircularAnimating {
public:
    void addRotationAnimation(platform::ShapeLayer& layer) const override;
    void addSpringAnimation(platform::ShapeLayer& layer) const override;
};

} // namespace quillet
