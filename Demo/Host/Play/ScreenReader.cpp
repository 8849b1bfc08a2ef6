#include "Play/ScreenReader.hpp"

#include "Play/Items.hpp"

#include <QAccessible>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>
#include <map>
#include <ranges>
#include <utility>

namespace demo {

namespace {

/// Elements whose centres are vertically closer than this are on one line.
constexpr double line = 8;

bool drawn(const QQuickItem& item) {
    double opacity = 1;
    for (const QQuickItem* i = &item; i; i = i->parentItem()) {
        opacity *= i->opacity();
    }
    return item.isVisible() && opacity > 0;
}

/// What the window and every clipping ancestor leave of it for the item to be seen in.
QRectF view(const QQuickItem& item) {
    const QQuickWindow* window = item.window();
    QRectF rect = window ? QRectF(0, 0, window->width(), window->height()) : QRectF();
    for (const QQuickItem* i = item.parentItem(); i; i = i->parentItem()) {
        if (i->clip()) {
            rect &= sceneRect(*i);
        }
    }
    return rect;
}

bool isWithin(const QQuickItem* item, const QQuickItem& ancestor) {
    while (item && item != &ancestor) {
        item = item->parentItem();
    }
    return item != nullptr;
}

/// The topmost item that takes a tap at this point: the target itself, something inside it, or what covers
/// it.
const QQuickItem* topmost(const QQuickItem& root, const QQuickItem& target, QPointF point) {
    // A fully transparent item still takes taps.
    if (!root.isVisible()) {
        return nullptr;
    }
    const bool hit = sceneRect(root).contains(point);
    if (root.clip() && !hit) {
        return nullptr;
    }
    QList<QQuickItem*> children = paintOrder(root);
    for (auto child = children.crbegin(); child != children.crend(); ++child) {
        if (const QQuickItem* found = topmost(**child, target, point)) {
            return found;
        }
    }
    return hit && (&root == &target || root.acceptedMouseButtons() != Qt::NoButton) ? &root : nullptr;
}

QString accessibleName(QQuickItem& item) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&item);
    if (!interface) {
        return {};
    }
    switch (interface->role()) {
    // A container that has the name of a text inside it would say that text twice.
    case QAccessible::Dialog:
    case QAccessible::ListItem:
    case QAccessible::Animation:
    case QAccessible::Client:
        return {};
    default:
        return interface->text(QAccessible::Name);
    }
}

} // namespace

bool ScreenElement::isCalled(const QString& name) const {
    return text == name || item->objectName() == name;
}

void ScreenReader::collect(QQuickItem& item, bool host, QList<QQuickItem*>& items) const {
    // Inside the stack the module's items are pages with a view controller; beside the stack they are its
    // overlays.
    if (item.objectName() == QLatin1String("hostBar")) {
        return;
    }
    if (has(item, "initialItem")) {
        host = true;
    }
    if (host && item.property("viewController").isValid()) {
        host = false;
    }
    if (!host) {
        items << &item;
    }
    for (QQuickItem* child : paintOrder(item)) {
        collect(*child, host, items);
    }
}

QList<QQuickItem*> ScreenReader::items() const {
    QList<QQuickItem*> items;
    collect(phone_, false, items);
    return items;
}

QList<ScreenElement> ScreenReader::elements() const {
    // By line, then from left to right; equal ones keep the order in which they came.
    std::multimap<std::pair<double, double>, ScreenElement> inReadingOrder;
    for (QQuickItem* item : items()) {
        const QString name = drawn(*item) ? accessibleName(*item) : QString();
        if (!name.isEmpty()) {
            const QPointF center = sceneRect(*item).center();
            inReadingOrder.emplace(
                std::pair(std::floor(center.y() / line), center.x()),
                ScreenElement{item, name, center, reaches(*item, center), item->isEnabled()});
        }
    }
    const auto elements = inReadingOrder | std::views::values;
    return {elements.begin(), elements.end()};
}

QStringList ScreenReader::texts() const {
    QStringList texts;
    for (const ScreenElement& element : elements()) {
        if (element.visible) {
            texts << element.text;
        }
    }
    return texts;
}

bool ScreenReader::shows(const QString& text) const {
    return texts().contains(text);
}

bool ScreenReader::knows(const QString& name) const {
    return std::ranges::any_of(elements(), [&](const ScreenElement& e) { return e.isCalled(name); });
}

bool ScreenReader::reaches(const QQuickItem& item, QPointF point) const {
    if (!drawn(item) || !view(item).contains(point)) {
        return false;
    }
    const QQuickItem* top = topmost(*item.window()->contentItem(), item, point);
    return top && isWithin(top, item);
}

bool ScreenReader::isWhollyShown(const QQuickItem& item) const {
    const QRectF all = sceneRect(item);
    const QRectF room = view(item);
    const QRectF shown = all & room;
    // Pages scroll to whole pixels, which an item need not stand on.
    constexpr double rounding = 1;
    return shown.width() > std::min(all.width(), room.width()) - rounding &&
           shown.height() > std::min(all.height(), room.height()) - rounding && reaches(item, shown.center());
}

std::optional<ScreenElement> ScreenReader::focus() const {
    QQuickItem* item = phone_.window()->activeFocusItem();
    if (!item) {
        return std::nullopt;
    }
    const QPointF center = sceneRect(*item).center();
    return ScreenElement{item, accessibleName(*item), center, reaches(*item, center), item->isEnabled()};
}

QQuickItem* ScreenReader::named(const QString& objectName) const {
    for (QQuickItem* item : items()) {
        if (item->objectName() == objectName && drawn(*item)) {
            return item;
        }
    }
    return nullptr;
}

QQuickItem* ScreenReader::scrollable() const {
    for (QQuickItem* item : items()) {
        if (has(*item, "flickDeceleration") && drawn(*item) &&
            item->property("contentHeight").toDouble() > item->height()) {
            return item;
        }
    }
    return nullptr;
}

} // namespace demo
