#include "Platform/Screens/Accessible/AccessibleItem.hpp"

#include "Platform/Screens/Accessible/AccessibleState.hpp"

#include <QGuiApplication>
#include <QQuickWindow>

#include <algorithm>
#include <iterator>
#include <map>
#include <ranges>
#include <vector>

namespace quillet::platform {

namespace {

QAccessibleInterface* makeAccessibleItem(const QString& className, QObject* object) {
    // Qt asks for the class of the object first, then for its base classes.
    auto* const item = className == QLatin1String(object->metaObject()->className())
                           ? qobject_cast<QQuickItem*>(object)
                           : nullptr;
    return item && AccessibleState::of(*item) ? new AccessibleItem(*item) : nullptr;
}

// Qt's attached type has no public C++ class; its object is a child of the item.
QObject* accessibleOf(const QObject& item) {
    const auto& children = item.children();
    const auto found = std::ranges::find_if(
        children, [](const QObject* child) { return child->inherits("QQuickAccessibleAttached"); });
    return found == children.end() ? nullptr : *found;
}

struct Place {
    QAccessibleInterface* child;
    QRectF rect;
};

// What a screen reader can see inside an item: the nearest items with an interface, down every branch.
void collect(const QQuickItem& within, std::vector<Place>& places) {
    for (QQuickItem* child : within.childItems()) {
        if (!child->isVisible()) {
            continue;
        }
        const QObject* const accessible = accessibleOf(*child);
        QAccessibleInterface* const found = accessible && !accessible->property("ignored").toBool()
                                                ? QAccessible::queryAccessibleInterface(child)
                                                : nullptr;
        if (found) {
            places.push_back({found, child->mapRectToScene(QRectF(0, 0, child->width(), child->height()))});
        } else {
            collect(*child, places);
        }
    }
}

// Maps keep equal keys in the order in which they came, which is that of the items.
QList<QAccessibleInterface*> inReadingOrder(const std::vector<Place>& places) {
    std::multimap<double, Place> fromTop;
    for (const Place& place : places) {
        fromTop.emplace(place.rect.top(), place);
    }
    const double forwards = QGuiApplication::isRightToLeft() ? -1 : 1;
    QList<QAccessibleInterface*> order;
    for (auto next = fromTop.begin(); next != fromTop.end();) {
        // What has its middle beside the highest that is left stands on one line with it.
        const double lineEnd = next->second.rect.bottom();
        std::multimap<double, QAccessibleInterface*> line;
        do {
            line.emplace(forwards * next->second.rect.center().x(), next->second.child);
            ++next;
        } while (next != fromTop.end() && next->second.rect.center().y() < lineEnd);
        std::ranges::copy(line | std::views::values, std::back_inserter(order));
    }
    return order;
}

} // namespace

void useAccessibleItems() {
    static const bool once = [] {
        QAccessible::installFactory(makeAccessibleItem);
        return true;
    }();
    static_cast<void>(once);
}

AccessibleItem::AccessibleItem(QQuickItem& item) : QAccessibleObject(&item) {}

QWindow* AccessibleItem::window() const {
    return item() ? item()->window() : nullptr;
}

QAccessibleInterface* AccessibleItem::parent() const {
    const QQuickWindow* const window = item()->window();
    for (QQuickItem* around = item()->parentItem(); around; around = around->parentItem()) {
        const QObject* const accessible = accessibleOf(*around);
        if (accessible && !accessible->property("ignored").toBool()) {
            return QAccessible::queryAccessibleInterface(around);
        }
    }
    return window ? QAccessible::queryAccessibleInterface(const_cast<QQuickWindow*>(window)) : nullptr;
}

QList<QAccessibleInterface*> AccessibleItem::children() const {
    const AccessibleState* const state = AccessibleState::of(*item());
    if (state && state->sealed) {
        return {};
    }
    std::vector<Place> places;
    collect(*item(), places);
    return inReadingOrder(places);
}

int AccessibleItem::indexOfChild(const QAccessibleInterface* child) const {
    return static_cast<int>(children().indexOf(child));
}

QAccessibleInterface* AccessibleItem::childAt(int x, int y) const {
    const auto all = children();
    const auto found = std::find_if(all.rbegin(), all.rend(), [&](const QAccessibleInterface* child) {
        return child->rect().contains(x, y);
    });
    return found == all.rend() ? nullptr : *found;
}

QAccessibleInterface* AccessibleItem::focusChild() const {
    QQuickItem* const focus = item()->window() ? item()->window()->activeFocusItem() : nullptr;
    const bool isInside = focus && (focus == item() || item()->isAncestorOf(focus));
    return isInside ? QAccessible::queryAccessibleInterface(focus) : nullptr;
}

QString AccessibleItem::text(QAccessible::Text kind) const {
    const AccessibleState* const state = AccessibleState::of(*item());
    switch (kind) {
    case QAccessible::Name:
        return attached("name").toString();
    case QAccessible::Description:
        return state && !state->announcement.isEmpty() && state->announcement != attached("name").toString()
                   ? state->announcement
                   : attached("description").toString();
    default:
        return {};
    }
}

QRect AccessibleItem::rect() const {
    const QQuickWindow* const window = item()->window();
    const QRectF place = item()->mapRectToScene(QRectF(0, 0, item()->width(), item()->height()));
    return window ? QRect(window->mapToGlobal(place.topLeft().toPoint()), place.size().toSize()) : QRect();
}

QAccessible::Role AccessibleItem::role() const {
    const int role = attached("role").toInt();
    return role == QAccessible::NoRole ? QAccessible::Client : static_cast<QAccessible::Role>(role);
}

QAccessible::State AccessibleItem::state() const {
    const QQuickItem& item = *this->item();
    QAccessible::State state;
    const QRectF window(QPointF(), item.window() ? QSizeF(item.window()->size()) : QSizeF());
    state.invisible = !item.window() || !item.window()->isVisible() || !item.isVisible();
    state.offscreen = !window.intersects(item.mapRectToScene(QRectF(0, 0, item.width(), item.height())));
    state.disabled = !item.isEnabled();
    state.focusable = item.activeFocusOnTab() || attached("focusable").toBool();
    state.focused = item.hasActiveFocus();
    state.pressed = attached("pressed").toBool();
    if (const AccessibleState* const more = AccessibleState::of(*this->item())) {
        state.expandable = more->expandable;
        state.expanded = more->expandable && more->expanded;
        state.collapsed = more->expandable && !more->expanded;
        state.busy = more->busy;
        state.modal = more->modal;
    }
    return state;
}

void* AccessibleItem::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList AccessibleItem::actionNames() const {
    QStringList names;
    if (role() == QAccessible::Button) {
        names << pressAction();
    }
    if (state().focusable) {
        names << setFocusAction();
    }
    return names;
}

void AccessibleItem::doAction(const QString& action) {
    if (action == setFocusAction()) {
        item()->forceActiveFocus(Qt::OtherFocusReason);
    } else if (QObject* const accessible = accessibleOf(*item()); accessible && action == pressAction()) {
        QMetaObject::invokeMethod(accessible, "pressAction");
    }
}

QVariant AccessibleItem::attached(const char* property) const {
    const QObject* const accessible = item() ? accessibleOf(*item()) : nullptr;
    return accessible ? accessible->property(property) : QVariant();
}

} // namespace quillet::platform
