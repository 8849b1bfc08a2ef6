#include "Views/ProgressIndicatorCircular/ProgressIndicatorItem.hpp"

#include "Views/ProgressIndicatorCircular/ProgressIndicatorCircular.hpp"

#include <QPainter>

namespace quillet {

ProgressIndicatorItem::ProgressIndicatorItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

QObject* ProgressIndicatorItem::indicator() const {
    return indicator_;
}

void ProgressIndicatorItem::setIndicator(QObject* indicator) {
    auto* circular = qobject_cast<ProgressIndicatorCircular*>(indicator);
    if (circular != indicator_) {
        indicator_ = circular;
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
    // Runs while the main thread waits for the frame, so the indicator is nobody else's at this moment.
    if (indicator_) {
        indicator_->draw(size());
        painter->setRenderHint(QPainter::Antialiasing);
        indicator_->layer().draw(*painter, time_);
    }
}

} // namespace quillet
