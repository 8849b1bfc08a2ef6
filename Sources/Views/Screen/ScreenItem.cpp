#include "Views/Screen/ScreenItem.hpp"

#include "Views/Screen/NavigationController.hpp"
#include "Views/Screen/QuickViewController.hpp"

namespace quillet {

ScreenItem::ScreenItem(QQuickItem* parent) : QQuickItem(parent) {}

ScreenItem::~ScreenItem() {
    viewDidLeave();
}

QObject* ScreenItem::viewController() const {
    return controller_.get();
}

void ScreenItem::setViewController(QObject* controller) {
    auto* screen = qobject_cast<QuickViewController*>(controller);
    if (!controller_ && screen) {
        controller_ = screen->shared_from_this();
        controller_->enter();
        Q_EMIT viewControllerChanged();
    }
}

QQuickItem* ScreenItem::coverArea() const {
    const NavigationController* navigation = controller_ ? controller_->navigationController() : nullptr;
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
        // A page that is popped is taken out of the stack before its animation begins, and told only after it
        // has ended.
        const NavigationController* navigation = controller_->navigationController();
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

} // namespace quillet
