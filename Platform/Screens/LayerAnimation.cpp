#include "Platform/Screens/LayerAnimation.hpp"

#include <QEasingCurve>
#include <QPointF>

#include <cmath>

namespace quillet::platform {

namespace {

double eased(LayerTiming timing, double progress) {
    static const QEasingCurve easeInEaseOut = [] {
        QEasingCurve curve(QEasingCurve::BezierSpline);
        curve.addCubicBezierSegment({0.42, 0}, {0.58, 1}, {1, 1});
        return curve;
    }();
    switch (timing) {
    case LayerTiming::linear:
        return progress;
    case LayerTiming::easeInEaseOut:
        break;
    }
    return easeInEaseOut.valueForProgress(progress);
}

} // namespace

double LayerAnimationGroup::value(const std::string& keyPath, double time, double otherwise) const {
    const double moment = std::fmod(time, duration);
    // Of two animations that meet at this moment, the later one has begun.
    for (auto animation = animations.rbegin(); animation != animations.rend(); ++animation) {
        const double passed = moment - animation->beginTime;
        if (animation->keyPath == keyPath && passed >= 0 && passed <= animation->duration) {
            const double progress = eased(animation->timing, passed / animation->duration);
            return animation->fromValue + (animation->toValue - animation->fromValue) * progress;
        }
    }
    return otherwise;
}

} // namespace quillet::platform
