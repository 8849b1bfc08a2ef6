#include "Views/ProgressIndicatorCircular/ProgressIndicatorCircularAnimating.hpp"

#include <numbers>

namespace quillet {

void ProgressIndicatorCircularAnimator::addRotationAnimation(platform::ShapeLayer& layer) const {
    layer.addAnimation(
        {4, {{"transform.rotation.z", 0, 4, 0, 2 * std::numbers::pi, platform::LayerTiming::linear}}},
        "Animation.rotation.key");
}

void ProgressIndicatorCircularAnimator::addSpringAnimation(platform::ShapeLayer& layer) const {
    constexpr auto ease = platform::LayerTiming::easeInEaseOut;
    layer.addAnimation({1.5,
                        {
                            {"strokeStart", 0, 1, 0, 0.15, ease},
                            {"strokeEnd", 0, 1, 0, 1, ease},
                            {"strokeStart", 1, 0.5, 0.15, 1, ease},
                            {"strokeEnd", 1, 0.5, 1, 1, ease},
                        }},
                       "Animation.spring.key");
}

} // namespace quillet
