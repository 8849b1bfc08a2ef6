#pragma once

#include <string>
#include <vector>

namespace quillet::platform {

/// How a value moves between its ends.
enum class LayerTiming {
    linear,
    /// The cubic Bézier (0.42, 0, 0.58, 1).
    easeInEaseOut,
};

/// One property of a layer going from one value to another. Times are in seconds.
struct BasicLayerAnimation {
    std::string keyPath;
    double beginTime = 0;
    double duration = 0;
    double fromValue = 0;
    double toValue = 0;
    LayerTiming timing = LayerTiming::linear;

    bool operator==(const BasicLayerAnimation&) const = default;
};

/// Animations that run together and begin anew every `duration` seconds, forever.
struct LayerAnimationGroup {
    double duration = 0;
    std::vector<BasicLayerAnimation> animations;

    /// The value of a property `time` seconds after the group began; `otherwise` where no animation of the
    /// group moves it at that moment.
    [[nodiscard]] double value(const std::string& keyPath, double time, double otherwise) const;

    bool operator==(const LayerAnimationGroup&) const = default;
};

} // namespace quillet::platform
