#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace quillet {

/// A modal overlay: it blocks touch, keyboard and screen reader for what it covers. It is a focus scope that
/// takes the active focus when it enters a window, and restores the previous focus when it is hidden or
/// removed. Its children draw it. Main thread only.
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
