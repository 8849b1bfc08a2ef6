#pragma once

#include <QAccessible>
#include <QObject>
#include <QQuickItem>
#include <QtQml/qqml.h>

namespace quillet::platform {

/// What a screen reader is told about an item beyond what Qt Quick's `Accessible` can say. It is attached to
/// an item that has an `Accessible.role` as well, before a screen reader asks for the item. Main thread only.
class AccessibleState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Attached to an item")
    QML_ATTACHED(quillet::platform::AccessibleState)
    /// Whether the item opens and closes something, and whether that is open.
    Q_PROPERTY(bool expandable MEMBER expandable NOTIFY changed FINAL)
    Q_PROPERTY(bool expanded MEMBER expanded NOTIFY changed FINAL)
    /// Whether the item waits for something.
    Q_PROPERTY(bool busy MEMBER busy NOTIFY changed FINAL)
    /// Whether nothing outside of the item can be used while it is shown.
    Q_PROPERTY(bool modal MEMBER modal NOTIFY changed FINAL)
    /// Whether nothing inside the item can be used, so that it is left out.
    Q_PROPERTY(bool sealed MEMBER sealed NOTIFY changed FINAL)
    /// What is said at once when it changes, and when the item appears; empty for nothing. It is also the
    /// description of the item, unless it is its name.
    Q_PROPERTY(QString announcement MEMBER announcement NOTIFY changed FINAL)

public:
    explicit AccessibleState(QObject* item);
    static AccessibleState* qmlAttachedProperties(QObject* item);
    /// The state of an item; null where it has none.
    [[nodiscard]] static AccessibleState* of(QObject& item);

    /// Where events go; a test can take them.
    static inline void (*post)(QAccessibleEvent* event) = QAccessible::updateAccessibility;

    bool expandable = false;
    bool expanded = false;
    bool busy = false;
    bool modal = false;
    bool sealed = false;
    QString announcement;

Q_SIGNALS:
    void changed();

private:
    /// Tells screen readers what is different from what they were told before.
    void tell();
    void announce();

    QQuickItem* item_;
    bool isMade_ = false;
    bool toldExpanded_ = false;
    bool toldBusy_ = false;
    bool toldSealed_ = false;
    QString announced_;
};

} // namespace quillet::platform
