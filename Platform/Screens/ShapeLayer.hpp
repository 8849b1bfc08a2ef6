#pragma once

#include "Platform/Screens/LayerAnimation.hpp"

#include <QColor>
#include <QPointF>
#include <QRectF>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QPainter;

namespace quillet::platform {

/// An arc around a centre. Angles are in radians, clockwise from three o'clock.
struct CirclePath {
    QPointF center;
    double radius = 0;
    double startAngle = 0;
    double endAngle = 0;

    bool operator==(const CirclePath&) const = default;
};

/// What an animated layer looks like at one moment.
struct LayerMoment {
    /// Which part of the path is stroked, from 0 to 1.
    double strokeStart = 0;
    double strokeEnd = 1;
    /// Clockwise, in radians.
    double rotation = 0;
};

/// A circle with a fill and a stroke, layers on top of it, and animations by key. Main thread only.
class ShapeLayer {
public:
    virtual ~ShapeLayer() = default;

    std::optional<CirclePath> path;
    QRectF bounds;
    /// Where the middle of the bounds lies in the layer above.
    QPointF position;
    QColor fillColor = Qt::transparent;
    std::optional<QColor> strokeColor;
    double lineWidth = 1;

    /// Adds an animation, in place of the one that runs under this key.
    void addAnimation(LayerAnimationGroup animation, const std::string& key) {
        animations_[key] = std::move(animation);
    }
    void removeAllAnimations() { animations_.clear(); }
    [[nodiscard]] const std::map<std::string, LayerAnimationGroup>& animations() const { return animations_; }

    void addSublayer(std::shared_ptr<ShapeLayer> layer) { sublayers_.push_back(std::move(layer)); }
    void removeSublayer(const ShapeLayer& layer);
    [[nodiscard]] const std::vector<std::shared_ptr<ShapeLayer>>& sublayers() const { return sublayers_; }

    /// `time` is in seconds since the animations began.
    [[nodiscard]] LayerMoment at(double time) const;
    /// Draws this layer and those on top of it as they look at `time`.
    void draw(QPainter& painter, double time) const;

private:
    std::map<std::string, LayerAnimationGroup> animations_;
    std::vector<std::shared_ptr<ShapeLayer>> sublayers_;
};

} // namespace quillet::platform
