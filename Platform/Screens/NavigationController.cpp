#include "Platform/Screens/NavigationController.hpp"

#include "Platform/Screens/QuickViewController.hpp"

#include <QLoggingCategory>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QQuickWindow>

#include <algorithm>

namespace quillet::platform {

namespace {
Q_LOGGING_CATEGORY(lcNavigation, "quillet.navigation")

// QML's own types have no public C++ classes, so they are recognised by a documented property.
bool has(const QObject& object, const char* property) {
    return object.metaObject()->indexOfProperty(property) >= 0;
}

// Layouts, positioners and containers would arrange an overlay like their other children.
bool arrangesChildren(const QQuickItem& item) {
    return has(item, "layoutDirection") || has(item, "populate") || has(item, "currentIndex");
}

bool holdsAnotherStack(const QQuickItem& area, const QQuickItem& stackView) {
    return std::ranges::any_of(area.childItems(), [&](const QQuickItem* child) {
        return child != &stackView && child->isVisible() &&
               (has(*child, "initialItem") ? !child->isAncestorOf(&stackView)
                                           : holdsAnotherStack(*child, stackView));
    });
}

// Header and footer of an ApplicationWindow are children of its content, but placed outside of it.
QQuickItem& withHeader(QQuickItem& area) {
    const QQuickWindow* window = area.window();
    for (const char* bar : {"header", "footer"}) {
        const auto* item = window ? window->property(bar).value<QQuickItem*>() : nullptr;
        if (item && item->parentItem() == &area && area.parentItem()) {
            return *area.parentItem();
        }
    }
    return area;
}

} // namespace

NavigationController::NavigationController(QQuickItem& stackView)
    : QObject(&stackView), stackView_(&stackView) {}

NavigationController& NavigationController::of(QQuickItem& stackView) {
    auto* existing = stackView.findChild<NavigationController*>(QString(), Qt::FindDirectChildrenOnly);
    return existing ? *existing : *new NavigationController(stackView);
}

NavigationController* NavigationController::of(const QuickViewController* screen) {
    QQuickItem* const stackView = screen ? screen->stackView() : nullptr;
    return stackView ? &of(*stackView) : nullptr;
}

bool NavigationController::holds(const QQuickItem& page) const {
    QQmlEngine* const ours = engine();
    if (!ours) {
        return false;
    }
    const QJSValue stack = ours->toScriptValue<QObject*>(stackView_.data());
    const QJSValue get = stack.property(QStringLiteral("get"));
    for (int index = stack.property(QStringLiteral("depth")).toInt() - 1; index >= 0; --index) {
        if (get.callWithInstance(stack, {index}).toQObject() == &page) {
            return true;
        }
    }
    return false;
}

QQmlEngine* NavigationController::engine() const {
    return stackView_ ? qmlEngine(stackView_) : nullptr;
}

void NavigationController::setCoverArea(QQuickItem* area) {
    const bool holdsStack = area && (area == stackView_ || area->isAncestorOf(stackView_));
    if (area && !holdsStack) {
        qCWarning(lcNavigation) << "the item to cover does not hold the StackView";
    }
    namedCoverArea_ = holdsStack ? area : nullptr;
}

QQuickItem* NavigationController::coverArea() const {
    if (namedCoverArea_) {
        return namedCoverArea_;
    }
    QQuickItem* area = stackView_ ? stackView_->parentItem() : nullptr;
    while (area && arrangesChildren(*area)) {
        area = area->parentItem();
    }
    return area && !holdsAnotherStack(*area, *stackView_) ? &withHeader(*area) : stackView_.data();
}

bool NavigationController::push(const std::shared_ptr<QuickViewController>& screen) {
    QQmlEngine* const engine = this->engine();
    if (!engine) {
        qCWarning(lcNavigation) << "no StackView to push on";
        return false;
    }
    if (screen->hasLeft()) {
        qCWarning(lcNavigation) << "this screen was shown before; make a new one";
        return false;
    }
    auto* component = new QQmlComponent(engine, screen->viewUrl(), this);
    if (component->isError()) {
        qCWarning(lcNavigation) << component->errors();
        delete component;
        return false;
    }
    screen->setStackView(stackView_);

    // StackView destroys a popped page only if it created the page, hence a component. Its `push` can only be
    // called from JavaScript, and only within a QML context: Qt 6.8 keeps that of the caller, and crashes
    // without one while it collects garbage. The engine must own neither the component nor the screen.
    QQmlEngine::setObjectOwnership(component, QQmlEngine::CppOwnership);
    QQmlEngine::setObjectOwnership(screen.get(), QQmlEngine::CppOwnership);
    auto* const context = new QQmlContext(engine->rootContext(), component);
    context->setContextProperties({{QStringLiteral("stack"), QVariant::fromValue(stackView_.data())},
                                   {QStringLiteral("component"), QVariant::fromValue(component)},
                                   {QStringLiteral("controller"), QVariant::fromValue(screen.get())}});
    QQmlExpression push(context, nullptr, QStringLiteral("stack.push(component, {controller: controller})"));
    auto* const page = push.evaluate().value<QObject*>();
    if (!page) {
        qCWarning(lcNavigation) << "push failed:" << push.error();
        delete component;
        return false;
    }
    component->setParent(page);
    return true;
}

} // namespace quillet::platform
