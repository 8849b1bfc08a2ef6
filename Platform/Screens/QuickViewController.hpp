#pragma once

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace quillet::platform {

/// A screen. It owns the objects behind what it shows, and a QML file draws it. A factory makes it in a
/// std::shared_ptr. Once it is pushed, the QML item that draws it is its only owner, so popping the screen
/// destroys the whole object graph. The controller holds no reference to its item.
///
/// Lifecycle, all on the main thread: `viewDidLoad` once, when the item is complete; `viewWillAppear` and
/// `viewWillDisappear` whenever the screen becomes or stops being the top of the stack. As soon as the host
/// pops the screen, taps and answers no longer reach it, although its animation may still run. A screen can
/// be shown only once.
class QuickViewController : public QObject, public std::enable_shared_from_this<QuickViewController> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by factories")
    Q_PROPERTY(QString title READ title NOTIFY titleChanged FINAL)
    Q_PROPERTY(bool hidesBackButton READ hidesBackButton NOTIFY hidesBackButtonChanged FINAL)
    Q_PROPERTY(bool continuesBar READ continuesBar NOTIFY continuesBarChanged FINAL)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY backgroundColorChanged FINAL)

public:
    /// Title for the host's bar while this screen is on top.
    [[nodiscard]] const QString& title() const { return title_; }
    /// Whether the host's bar should hide its back button.
    [[nodiscard]] bool hidesBackButton() const { return hidesBackButton_; }
    /// Whether the top of the screen continues the host's bar, as a tab bar does. The bar should then draw no
    /// line below it.
    [[nodiscard]] bool continuesBar() const { return continuesBar_; }
    /// Background colour of the page; transparent until set.
    [[nodiscard]] const QColor& backgroundColor() const { return backgroundColor_; }
    void setTitle(const QString& title);
    void setHidesBackButton(bool hides);

    /// The StackView that this screen was pushed on. Null before that, after the screen was popped (even
    /// while it is animated out), and after the stack was destroyed. See NavigationController::of.
    [[nodiscard]] QQuickItem* stackView() const { return stay_ ? stackView_.data() : nullptr; }
    void setStackView(QQuickItem* stackView) { stackView_ = stackView; }

    /// A weak reference to this screen, or to a part that it owns, for callbacks. It expires when the screen
    /// leaves the stack.
    template <typename Part>
    [[nodiscard]] std::weak_ptr<Part> wayBackTo(Part& part) const {
        return std::shared_ptr<Part>(stay_, &part);
    }

    /// Makes the page that draws this screen its owner.
    void enter();
    /// Called when the host has popped the screen. All references of `wayBackTo` expire.
    void leave() { stay_.reset(); }
    [[nodiscard]] bool hasLeft() const { return !stay_; }

    /// The QML file that draws this screen.
    [[nodiscard]] virtual QUrl viewUrl() const = 0;

    virtual void viewDidLoad() {}
    virtual void viewWillAppear() {}
    virtual void viewWillDisappear() {}

Q_SIGNALS:
    void titleChanged();
    void hidesBackButtonChanged();
    void continuesBarChanged();
    void backgroundColorChanged();

protected:
    QuickViewController() = default;
    void setBackgroundColor(const QColor& color);
    void setContinuesBar(bool continues);
    /// Expires when the screen leaves the stack. A lock keeps the screen alive.
    [[nodiscard]] std::weak_ptr<const void> stay() const { return stay_; }

    /// A view may be replaced while it handles a tap, so it is destroyed later, by the event loop.
    struct DeleteLater {
        void operator()(QObject* object) const { object->deleteLater(); }
    };

private:
    /// Exists while the screen is on the stack. A locked weak reference to it keeps the screen alive.
    struct Stay {
        std::shared_ptr<QuickViewController> screen;
    };

    QString title_;
    QColor backgroundColor_ = Qt::transparent;
    bool hidesBackButton_ = false;
    bool continuesBar_ = false;
    QPointer<QQuickItem> stackView_;
    std::shared_ptr<Stay> stay_ = std::make_shared<Stay>();
};

} // namespace quillet::platform
