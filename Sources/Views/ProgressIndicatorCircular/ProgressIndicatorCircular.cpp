#include "Views/ProgressIndicatorCircular/ProgressIndicatorCircular.hpp"

#include <array>
#include <numbers>
#include <utility>

namespace quillet {

namespace {

constexpr double kSizeMicro = 4;

struct Measures {
    double arcDiameter;
    double backgroundRadius;
};

Measures measures(ProgressIndicatorCircular::Size size) {
    static constexpr std::array<Measures, 4> table{{{24, 12}, {32, 16}, {48, 24}, {64, 32}}};
    return table[static_cast<std::size_t>(size)];
}

} // namespace

ProgressIndicatorCircular::ProgressIndicatorCircular(
    std::unique_ptr<ProgressIndicatorCircularAnimating> animator)
    : animator_(std::move(animator)) {}

void ProgressIndicatorCircular::configure(Action action, Size size) {
    action_ = action;
    size_ = size;
    if (action == Action::hideAndStopAnimation) {
        hide();
    }
}

void ProgressIndicatorCircular::configure(bool useBackgroundLayer) {
    circleLayer_->fillColor = useBackgroundLayer ? Qt::white : Qt::transparent;
}

void ProgressIndicatorCircular::draw(const QSizeF& bounds) {
    switch (action_) {
    case Action::hideAndStopAnimation:
        return hide();
    case Action::showAndStartAnimation:
        if (layer_.sublayers().empty()) {
            addCircleAndSemiCircle(bounds);
            isVisible_ = true;
        }
    }
}

void ProgressIndicatorCircular::hide() {
    isVisible_ = false;
    if (semiCircleLayer_) {
        semiCircleLayer_->removeAllAnimations();
        circleLayer_->removeSublayer(*semiCircleLayer_);
    }
    layer_.removeSublayer(*circleLayer_);
}

void ProgressIndicatorCircular::addCircleAndSemiCircle(const QSizeF& bounds) {
    const Measures measure = measures(size_);
    if (!semiCircleLayer_) {
        // The circle layer keeps empty bounds, so both rings lie around its origin.
        semiCircleLayer_ = std::make_shared<SemiCircleLayer>(measure.arcDiameter, circleLayer_->bounds);
    }
    animator_->addRotationAnimation(*semiCircleLayer_);
    animator_->addSpringAnimation(*semiCircleLayer_);
    circleLayer_->path =
        platform::CirclePath{circleLayer_->bounds.center(), measure.backgroundRadius + kSizeMicro,
                             std::numbers::pi, 3 * std::numbers::pi};
    circleLayer_->position = {bounds.width() / 2, bounds.height() / 2};
    circleLayer_->addSublayer(semiCircleLayer_);
    layer_.addSublayer(circleLayer_);
}

} // namespace quillet
