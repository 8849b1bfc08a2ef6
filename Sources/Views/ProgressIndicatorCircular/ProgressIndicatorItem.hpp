#pragma once

#include "Views/ProgressIndicatorCircular/ProgressIndicatorCircular.hpp"

#include <QPointer>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace quillet {

/// Draws a progress indicator as it looks at `time`, with either renderer.
class ProgressIndicatorItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quillet::ProgressIndicatorCircular* indicator READ indicator WRITE setIndicator NOTIFY
                   indicatorChanged FINAL)
    /// Seconds since the animation began.
    Q_PROPERTY(double time READ time WRITE setTime NOTIFY timeChanged FINAL)

public:
    explicit ProgressIndicatorItem(QQuickItem* parent = nullptr);

    [[nodiscard]] ProgressIndicatorCircular* indicator() const { return indicator_; }
    void setIndicator(ProgressIndicatorCircular* indicator);
    [[nodiscard]] double time() const { return time_; }
    void setTime(double time);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void indicatorChanged();
    void timeChanged();

private:
    QPointer<ProgressIndicatorCircular> indicator_;
    double time_ = 0;
};

} // namespace quillet
