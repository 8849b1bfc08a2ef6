#include "Views/Covers/Cover.hpp"

#include <QKeyEvent>
#include <QQuickWindow>

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

QList<Cover*>& covers() {
    static QList<Cover*> all;
    return all;
}

} // namespace

Cover::Cover(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemIsFocusScope);
    // What the content leaves alone ends here, a second finger as well.
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptTouchEvents(true);
    setAcceptHoverEvents(true);
    covers().append(this);
}

Cover::~Cover() {
    covers().removeOne(this);
    giveKeysBack();
}

bool Cover::isOver(const QQuickItem& item) {
    return std::ranges::any_of(covers(), [&](const Cover* cover) {
        return cover->window() && cover->window() == item.window() && cover->isVisible() &&
               !cover->isAncestorOf(&item);
    });
}

void Cover::componentComplete() {
    QQuickItem::componentComplete();
    takeKeys();
}

// A loader takes an item away without letting its QML know, so this is not done there.
void Cover::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemSceneChange && data.window && isComponentComplete()) {
        takeKeys();
    }
    if ((change == ItemSceneChange && !data.window) || (change == ItemVisibleHasChanged && !data.boolValue)) {
        giveKeysBack();
    }
    QQuickItem::itemChange(change, data);
}

void Cover::keyPressEvent(QKeyEvent* event) {
    // The way back out of the application stays open.
    event->setAccepted(event->key() != Qt::Key_Back);
}

void Cover::touchEvent(QTouchEvent* event) {
    event->accept();
}

void Cover::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void Cover::wheelEvent(QWheelEvent* event) {
    event->accept();
}

void Cover::takeKeys() {
    if (window() && !hasTakenKeys_) {
        hasTakenKeys_ = true;
        previous_ = window()->activeFocusItem();
        forceActiveFocus();
    }
}

void Cover::giveKeysBack() {
    QQuickItem* previous = std::exchange(previous_, nullptr);
    hasTakenKeys_ = false;
    // A window that is being destroyed has let go of its content, and focuses nothing any more.
    if (!previous || !previous->window() || !previous->window()->contentItem()) {
        return;
    }
    // A cover that came over this one has to give back past it.
    for (Cover* cover : covers()) {
        if (cover != this && cover->previous_ &&
            (cover->previous_ == this || isAncestorOf(cover->previous_))) {
            cover->previous_ = previous;
        }
    }
    // Whoever took the keys meanwhile on purpose keeps them; a focus
    // scope that received focus by default does not count.
    const QQuickItem* holder = previous->window()->activeFocusItem();
    if (!holder || holder == this || isAncestorOf(holder) || holder == previous->window()->contentItem() ||
        (holder->isFocusScope() && !qobject_cast<const Cover*>(holder))) {
        previous->forceActiveFocus();
    }
}

} // namespace quillet
