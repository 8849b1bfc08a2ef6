#include "Platform/Screens/Accessible/AccessibleState.hpp"

#include <QQuickWindow>

#include <utility>

namespace quillet::platform {

AccessibleState::AccessibleState(QObject* item) : QObject(item), item_(qobject_cast<QQuickItem*>(item)) {
    // A screen reader may have asked for the item while it was being made, and would keep what it was given
    // then.
    if (QAccessibleInterface* given =
            QAccessible::isActive() ? QAccessible::queryAccessibleInterface(item) : nullptr) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(given));
    }
    connect(this, &AccessibleState::changed, this, &AccessibleState::tell);
    // What an item is when it is made is no change, and it may have no name yet.
    QMetaObject::invokeMethod(
        this, [this] { isMade_ = true; }, Qt::QueuedConnection);
    if (item_) {
        connect(item_, &QQuickItem::visibleChanged, this, &AccessibleState::announce);
        connect(item_, &QQuickItem::windowChanged, this, &AccessibleState::announce);
    }
}

AccessibleState* AccessibleState::qmlAttachedProperties(QObject* item) {
    return new AccessibleState(item);
}

AccessibleState* AccessibleState::of(QObject& item) {
    return qobject_cast<AccessibleState*>(qmlAttachedPropertiesObject<AccessibleState>(&item, false));
}

void AccessibleState::tell() {
    QAccessible::State differs;
    differs.expanded = std::exchange(toldExpanded_, expanded) != expanded && isMade_;
    differs.collapsed = differs.expanded;
    differs.busy = std::exchange(toldBusy_, busy) != busy;
    // What is not on the screen yet has no state before.
    const bool isShown = item_ && item_->window();
    if (isShown && (differs.expanded || differs.busy)) {
        QAccessibleStateChangeEvent event(item_, differs);
        post(&event);
    }
    if (std::exchange(toldSealed_, sealed) != sealed && isShown) {
        QAccessibleEvent event(item_, QAccessible::ObjectReorder);
        post(&event);
    }
    announce();
}

void AccessibleState::announce() {
    const QString heard = item_ && item_->window() && item_->isVisible() ? announcement : QString();
    if (std::exchange(announced_, heard) == heard || heard.isEmpty()) {
        return;
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(item_, heard);
#else
    // The item's description has the words.
    QAccessibleEvent event(item_, QAccessible::Alert);
#endif
    post(&event);
}

} // namespace quillet::platform
