#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace quillet {

/// A modal overlay: it blocks touch, keyboard and screen reader for what it covers. It is a focus scope that
/// takes the active focus when it appears in a window, unless the focus is outside of what it covers, and
/// restores the previous focus when it is hidden or removed. It covers its parent, or the parent of the
/// Loader that makes it. Its children draw it. Main thread only.
class Cover : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The page below it, which gets the keys where what had them before cannot have them back.
    Q_PROPERTY(QQuickItem* below READ below WRITE setBelow FINAL)

public:
    explicit Cover(QQuickItem* parent = nullptr);
    ~Cover() override;

    [[nodiscard]] QQuickItem* below() const { return below_; }
    void setBelow(QQuickItem* page) { below_ = page; }

    /// Whether a cover lies over the item: over the area that the item is in, and not around it.
    [[nodiscard]] static bool isOver(const QQuickItem& item);

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void keyPressEvent(QKeyEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] const QQuickItem* area() const;
    void takeKeys();
    void giveKeysBack();

    QPointer<QQuickItem> below_;
    QPointer<QQuickItem> previous_;
    bool hasTakenKeys_ = false;
};

} // namespace quillet
