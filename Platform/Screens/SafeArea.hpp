#pragma once

#include <QMarginsF>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace quillet::platform {

/// How much of an item's edges a notch, rounded corners or a gesture bar of the device take, in
/// device-independent pixels. What can be touched or read keeps off these edges; what is only ground goes on
/// below them.
///
/// Insets are those that were set for the item or for the nearest item around it, less what already lies
/// between the edges of the two. Where none were set they are the window's own, from Qt 6.9 on, and before
/// that none. They follow the item's size and place in its parent. Main thread only.
class SafeArea : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* item READ item WRITE setItem NOTIFY itemChanged FINAL)
    /// Edges of the item beside which something else lies, so that they have no margin.
    Q_PROPERTY(Qt::Edges inner READ inner WRITE setInner NOTIFY innerChanged FINAL)
    Q_PROPERTY(double left READ left NOTIFY changed FINAL)
    Q_PROPERTY(double top READ top NOTIFY changed FINAL)
    Q_PROPERTY(double right READ right NOTIFY changed FINAL)
    Q_PROPERTY(double bottom READ bottom NOTIFY changed FINAL)

public:
    explicit SafeArea(QObject* parent = nullptr);
    ~SafeArea() override;

    /// Sets the insets of an item; negative ones count as none.
    static void setInsets(QQuickItem& area, const QMarginsF& insets);

    [[nodiscard]] QQuickItem* item() const { return item_; }
    void setItem(QQuickItem* item);
    [[nodiscard]] Qt::Edges inner() const { return inner_; }
    void setInner(Qt::Edges edges);
    [[nodiscard]] double left() const { return margins_.left(); }
    [[nodiscard]] double top() const { return margins_.top(); }
    [[nodiscard]] double right() const { return margins_.right(); }
    [[nodiscard]] double bottom() const { return margins_.bottom(); }

Q_SIGNALS:
    void itemChanged();
    void innerChanged();
    void changed();

private:
    void measure();
    void followWindow();

    QPointer<QQuickItem> item_;
    Qt::Edges inner_;
    QMarginsF margins_;
};

} // namespace quillet::platform
