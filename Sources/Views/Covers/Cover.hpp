#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace quillet {

/// Something that lies over a screen and keeps it from being used meanwhile, be it by touch, by key or by a
/// screen reader: a focus scope that takes the keys when it comes into a window, lets nothing through, and
/// gives the keys back to whatever had them before when it is hidden or taken away. What it covers with is
/// its content's business. Main thread only.
class Cover : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit Cover(QQuickItem* parent = nullptr);
    ~Cover() override;

    /// Whether a cover of the item's window lies over the item.
    [[nodiscard]] static bool isOver(const QQuickItem& item);

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void keyPressEvent(QKeyEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void takeKeys();
    void giveKeysBack();

    QPointer<QQuickItem> previous_;
    bool hasTakenKeys_ = false;
};

} // namespace quillet
