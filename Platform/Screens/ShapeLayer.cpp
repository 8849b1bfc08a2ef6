#include "Platform/Screens/ShapeLayer.hpp"

#include <QPainter>
#include <QPainterPath>

#include <numbers>

namespace quillet::platform {

namespace {

double degrees(double radians) {
    return radians * 180 / std::numbers::pi;
}

} // namespace

void ShapeLayer::removeSublayer(const ShapeLayer& layer) {
    std::erase_if(sublayers_, [&](const auto& sublayer) { return sublayer.get() == &layer; });
}

LayerMoment ShapeLayer::at(double time) const {
    LayerMoment moment;
    for (const auto& [key, animation] : animations_) {
        moment.strokeStart = animation.value("strokeStart", time, moment.strokeStart);
        moment.strokeEnd = animation.value("strokeEnd", time, moment.strokeEnd);
        moment.rotation = animation.value("transform.rotation.z", time, moment.rotation);
    }
    return moment;
}

void ShapeLayer::draw(QPainter& painter, double time) const {
    painter.save();
    painter.translate(position);
    const LayerMoment moment = at(time);
    painter.rotate(degrees(moment.rotation));
    painter.translate(-bounds.center());
    if (path) {
        const QRectF square(path->center.x() - path->radius, path->center.y() - path->radius,
                            2 * path->radius, 2 * path->radius);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fillColor);
        painter.drawEllipse(square);
        if (strokeColor && moment.strokeEnd > moment.strokeStart) {
            // Qt counts angles counter-clockwise.
            const double sweep = degrees(path->endAngle - path->startAngle);
            const double start = -degrees(path->startAngle) - sweep * moment.strokeStart;
            QPainterPath arc;
            arc.arcMoveTo(square, start);
            arc.arcTo(square, start, -sweep * (moment.strokeEnd - moment.strokeStart));
            painter.strokePath(arc, QPen(*strokeColor, lineWidth, Qt::SolidLine, Qt::FlatCap));
        }
    }
    for (const auto& sublayer : sublayers_) {
        sublayer->draw(painter, time);
    }
    painter.restore();
}

} // namespace quillet::platform
