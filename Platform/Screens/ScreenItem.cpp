#include "Platform/Screens/ScreenItem.hpp"

#include "Platform/Screens/NavigationController.hpp"

namespace quillet::platform {

ScreenItem::ScreenItem(QQuickItem* parent) : QQuickItem(parent) {
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &ScreenItem::mirroredChanged);
}

ScreenItem::~ScreenItem() {
    viewDidLeave();
}

void ScreenItem::setViewController(QuickViewController* controller) {
    if (!controller_ && controller) {
        controller_ = controller->shared_from_this();
        controller_->enter();
        Q_EMIT viewControllerChanged();
    }
}

QQuickItem* ScreenItem::coverArea() const {
    const NavigationController* navigation = NavigationController::of(controller_.get());
    return navigation ? navigation->coverArea() : nullptr;
}

void ScreenItem::componentComplete() {
    QQuickItem::componentComplete();
    if (controller_) {
        controller_->viewDidLoad();
    }
}

void ScreenItem::viewWillAppear() {
    if (controller_) {
        controller_->viewWillAppear();
    }
}

void ScreenItem::viewWillDisappear() {
    if (controller_) {
        controller_->viewWillDisappear();
        // A popped page is removed from the stack before its animation begins, but is notified only after the
        // animation.
        const NavigationController* navigation = NavigationController::of(controller_.get());
        if (!navigation || !navigation->holds(*this)) {
            controller_->leave();
        }
    }
}

void ScreenItem::viewDidLeave() {
    if (controller_) {
        controller_->leave();
    }
}

} // namespace quillet::platform
