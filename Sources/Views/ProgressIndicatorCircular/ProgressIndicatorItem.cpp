#include "Views/ProgressIndicatorCircular/ProgressIndicatorItem.hpp"

#include <QPainter>

namespace quillet {

ProgressIndicatorItem::ProgressIndicatorItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void ProgressIndicatorItem::setIndicator(ProgressIndicatorCircular* indicator) {
    if (indicator != indicator_) {
        indicator_ = indicator;
        Q_EMIT indicatorChanged();
        update();
    }
}

void ProgressIndicatorItem::setTime(double time) {
    if (time != time_) {
        time_ = time;
        Q_EMIT timeChanged();
        update();
    }
}

void ProgressIndicatorItem::paint(QPainter* painter) {
    // Called while the main thread is blocked for rendering, so the indicator is not in use elsewhere.
    if (indicator_) {
        indicator_->draw(size());
        painter->setRenderHint(QPainter::Antialiasing);
        indicator_->layer().draw(*painter, time_);
    }
}

} // namespace quillet
