#pragma once

#include <QAccessibleActionInterface>
#include <QAccessibleObject>
#include <QQuickItem>

namespace quillet::platform {

/// Makes screen readers see items with an AccessibleState through AccessibleItem, from the first call on.
void useAccessibleItems();

/// An item as a screen reader sees it: role, name, description and press action as its `Accessible` says, the
/// states of its AccessibleState, and its children in the order in which they are read on the screen: by
/// lines from the top, within a line from the side where reading begins. Main thread only.
class AccessibleItem final : public QAccessibleObject, public QAccessibleActionInterface {
public:
    explicit AccessibleItem(QQuickItem& item);

    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] int childCount() const override { return static_cast<int>(children().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override { return children().value(index); }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;

    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override;

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& action) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    [[nodiscard]] QQuickItem* item() const { return qobject_cast<QQuickItem*>(object()); }
    [[nodiscard]] QList<QAccessibleInterface*> children() const;
    /// A property of the item's `Accessible`.
    [[nodiscard]] QVariant attached(const char* property) const;
};

} // namespace quillet::platform
