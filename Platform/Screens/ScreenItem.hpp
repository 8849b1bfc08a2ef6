#pragma once

#include "Platform/Screens/QuickViewController.hpp"

#include <QGuiApplication>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace quillet::platform {

/// The root item of a screen's QML. It holds the owning reference to the screen's controller: when the stack
/// destroys the item, the whole object graph is destroyed.
class ScreenItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The controller that this item draws; set once, when the item is made.
    Q_PROPERTY(quillet::platform::QuickViewController* viewController READ viewController WRITE
                   setViewController NOTIFY viewControllerChanged FINAL)
    /// Whether the application's layout runs from right to left.
    Q_PROPERTY(bool mirrored READ isMirrored NOTIFY mirroredChanged FINAL)
    /// The item that overlays of this screen cover.
    Q_PROPERTY(QQuickItem* coverArea READ coverArea NOTIFY viewControllerChanged FINAL)

public:
    explicit ScreenItem(QQuickItem* parent = nullptr);
    ~ScreenItem() override;

    [[nodiscard]] QuickViewController* viewController() const { return controller_.get(); }
    void setViewController(QuickViewController* controller);
    [[nodiscard]] static bool isMirrored() { return QGuiApplication::isRightToLeft(); }
    [[nodiscard]] QQuickItem* coverArea() const;

    Q_INVOKABLE void viewWillAppear();
    /// Called when another page covers this one, or the host pops it.
    Q_INVOKABLE void viewWillDisappear();
    /// Called when the stack has removed the page, even from below other pages.
    Q_INVOKABLE void viewDidLeave();

Q_SIGNALS:
    void viewControllerChanged();
    void mirroredChanged();

protected:
    void componentComplete() override;

private:
    std::shared_ptr<QuickViewController> controller_;
};

} // namespace quillet::platform
