#include "KelDS/KelCover.hpp"

#include <QKeyEvent>
#include <QQuickWindow>

#include <utility>

namespace kel {

KelCover::KelCover(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemIsFocusScope);
}

KelCover::~KelCover() {
    giveBack();
}

void KelCover::componentComplete() {
    QQuickItem::componentComplete();
    if (window()) {
        previous_ = window()->activeFocusItem();
    }
    forceActiveFocus();
}

// A loader takes an item away without letting its QML know, so this is not done there.
void KelCover::itemChange(ItemChange change, const ItemChangeData& data) {
    if ((change == ItemSceneChange && !data.window) || (change == ItemVisibleHasChanged && !data.boolValue)) {
        giveBack();
    }
    QQuickItem::itemChange(change, data);
}

void KelCover::keyPressEvent(QKeyEvent* event) {
    // The way back out of the application stays open.
    event->setAccepted(event->key() != Qt::Key_Back);
}

void KelCover::giveBack() {
    QQuickItem* previous = std::exchange(previous_, nullptr);
    if (!previous || !previous->window()) {
        return;
    }
    // Whoever took the keys meanwhile on purpose keeps them; a scope merely fell heir to them.
    const QQuickItem* holder = previous->window()->activeFocusItem();
    if (!holder || holder == this || isAncestorOf(holder) || holder->isFocusScope() ||
        holder == previous->window()->contentItem()) {
        previous->forceActiveFocus();
    }
}

} // namespace kel
