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
    // Accept all input that the content does not, second touch points included.
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
        return cover->isVisible() && cover->area() && cover->area()->isAncestorOf(&item) &&
               !cover->isAncestorOf(&item);
    });
}

const QQuickItem* Cover::area() const {
    const QQuickItem* parent = parentItem();
    const bool isLoaded = parent && parent->metaObject()->indexOfProperty("sourceComponent") >= 0;
    return isLoaded ? parent->parentItem() : parent;
}

void Cover::componentComplete() {
    QQuickItem::componentComplete();
    takeKeys();
}

// Not done in QML, because a Loader removes its item without a signal in the item's QML.
void Cover::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemSceneChange && data.window && isComponentComplete()) {
        takeKeys();
    }
    if (change == ItemVisibleHasChanged && data.boolValue && isComponentComplete()) {
        takeKeys();
    }
    if ((change == ItemSceneChange && !data.window) || (change == ItemVisibleHasChanged && !data.boolValue)) {
        giveKeysBack();
    }
    QQuickItem::itemChange(change, data);
}

void Cover::keyPressEvent(QKeyEvent* event) {
    // The platform's back key must reach the application.
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
    if (!window() || !isVisible() || hasTakenKeys_) {
        return;
    }
    QQuickItem* const focus = window()->activeFocusItem();
    const bool isElsewhere =
        focus && area() && focus != area() && !area()->isAncestorOf(focus) && !focus->isAncestorOf(area());
    if (!isElsewhere) {
        hasTakenKeys_ = true;
        previous_ = focus;
        forceActiveFocus();
    }
}

void Cover::giveKeysBack() {
    QQuickItem* previous = std::exchange(previous_, nullptr);
    hasTakenKeys_ = false;
    // A window that is being destroyed has no content item and cannot focus anything.
    if (!previous || !previous->window() || !previous->window()->contentItem()) {
        return;
    }
    if (!previous->isVisible() || !previous->isEnabled()) {
        // Its page is covered by another one. A key must not act on what nobody sees.
        previous->setFocus(false);
        previous = below_ && below_->isVisible() ? below_.data() : previous->window()->contentItem();
    }
    // A cover above this one must not restore the focus to this one.
    for (Cover* cover : covers()) {
        if (cover != this && cover->previous_ &&
            (cover->previous_ == this || isAncestorOf(cover->previous_))) {
            cover->previous_ = previous;
        }
    }
    // An item that took the focus deliberately keeps it; a focus scope that received focus by default does
    // not count.
    const QQuickItem* holder = previous->window()->activeFocusItem();
    if (!holder || holder == this || isAncestorOf(holder) || holder == previous->window()->contentItem() ||
        (holder->isFocusScope() && !qobject_cast<const Cover*>(holder))) {
        previous->forceActiveFocus();
    }
}

} // namespace quillet
