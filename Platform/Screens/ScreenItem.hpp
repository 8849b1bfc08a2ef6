#pragma once

#include "Platform/Screens/QuickViewController.hpp"

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace quillet::platform {

/// The root of a screen's QML. It is the strong reference that keeps the screen's controller, and so the
/// whole graph behind it, alive: when the stack destroys the item, everything goes.
class ScreenItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The controller that this item draws; set once, when the item is made.
    Q_PROPERTY(quillet::platform::QuickViewController* viewController READ viewController WRITE
                   setViewController NOTIFY viewControllerChanged FINAL)
    /// The item that overlays of this screen cover.
    Q_PROPERTY(QQuickItem* coverArea READ coverArea NOTIFY viewControllerChanged FINAL)

public:
    explicit ScreenItem(QQuickItem* parent = nullptr);
    ~ScreenItem() override;

    [[nodiscard]] QuickViewController* viewController() const { return controller_.get(); }
    void setViewController(QuickViewController* controller);
    [[nodiscard]] QQuickItem* coverArea() const;

    Q_INVOKABLE void viewWillAppear();
    /// Another page covers this one, or the host takes it off.
    Q_INVOKABLE void viewWillDisappear();
    /// The stack has let go of the page, be it from under others.
    Q_INVOKABLE void viewDidLeave();

Q_SIGNALS:
    void viewControllerChanged();

protected:
    void componentComplete() override;

private:
    std::shared_ptr<QuickViewController> controller_;
};

} // namespace quillet::platform
