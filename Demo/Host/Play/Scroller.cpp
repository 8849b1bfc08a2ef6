#include "Play/Scroller.hpp"

#include <algorithm>
#include <cmath>

namespace demo {

bool Scroller::toEdge(bool end) {
    const double edge = end ? last() : first();
    const bool there = std::abs(here() - edge) < 1;
    go(edge);
    return there;
}

void Scroller::onwards() {
    go(here() >= last() - 1 ? first() : here() + 0.7 * page_.height());
}

void Scroller::toMiddle(double sceneY) {
    go(here() + sceneY - page_.mapToScene(QPointF(0, 0)).y() - page_.height() / 2);
}

double Scroller::first() const {
    return page_.property("originY").toDouble();
}

double Scroller::last() const {
    return std::max(first(), first() + page_.property("contentHeight").toDouble() - page_.height());
}

double Scroller::here() const {
    return page_.property("contentY").toDouble();
}

void Scroller::go(double contentY) {
    page_.setProperty("contentY", std::clamp(contentY, first(), last()));
}

} // namespace demo
