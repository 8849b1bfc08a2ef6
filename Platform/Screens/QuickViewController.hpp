#pragma once

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace quillet::platform {

/// A screen: it owns everything behind what it shows, and a QML file draws it. Made by a factory, it lives in
/// a std::shared_ptr; once it is pushed, the QML item that draws it is its one owner, so taking the screen
/// off the stack destroys the whole graph. The controller knows its item only through the navigation
/// controller, never directly.
///
/// Lifecycle, all on the main thread: `viewDidLoad` once, when the item has been made; `viewWillAppear` and
/// `viewWillDisappear` on each entering and leaving of the top of the stack. Once the host has taken the
/// screen off the stack, what is still to be seen of it is a picture on its way out: nothing reaches the
/// screen any more, neither taps nor answers. So it is shown once; the next time takes a new one.
class QuickViewController : public QObject, public std::enable_shared_from_this<QuickViewController> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by factories")
    Q_PROPERTY(QString title READ title NOTIFY titleChanged FINAL)
    Q_PROPERTY(bool hidesBackButton READ hidesBackButton NOTIFY hidesBackButtonChanged FINAL)
    Q_PROPERTY(bool continuesBar READ continuesBar NOTIFY continuesBarChanged FINAL)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY backgroundColorChanged FINAL)

public:
    /// What the host's bar shows while this screen is on top.
    [[nodiscard]] const QString& title() const { return title_; }
    /// Whether the host's bar is to show no way back from this screen.
    [[nodiscard]] bool hidesBackButton() const { return hidesBackButton_; }
    /// Whether the screen goes on where the host's bar ends, as with a tab bar: no line belongs between them.
    [[nodiscard]] bool continuesBar() const { return continuesBar_; }
    /// What the page is filled with, behind all that it draws; nothing until set.
    [[nodiscard]] const QColor& backgroundColor() const { return backgroundColor_; }
    void setTitle(const QString& title);
    void setHidesBackButton(bool hides);

    /// The StackView that this screen was pushed on; null before that, once the screen has left it (though it
    /// may still be on its way out), and when the stack is gone. NavigationController::of turns it into what
    /// the next screen is pushed with.
    [[nodiscard]] QQuickItem* stackView() const { return stay_ ? stackView_.data() : nullptr; }
    void setStackView(QQuickItem* stackView) { stackView_ = stackView; }

    /// The way back to this screen, or to a part of the graph that it owns, for those that may come back
    /// later: it finds nobody once the screen has left the stack.
    template <typename Part>
    [[nodiscard]] std::weak_ptr<Part> wayBackTo(Part& part) const {
        return std::shared_ptr<Part>(stay_, &part);
    }

    /// The page that draws this screen owns it from now on.
    void enter();
    /// The host has taken the screen off its stack. All ways back end here.
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
    /// Whether the screen can still be reached: for as long as it is locked, the screen is there.
    [[nodiscard]] std::weak_ptr<const void> stay() const { return stay_; }

    /// A view that is on screen may be in the middle of telling about a tap when it is replaced: it goes once
    /// control is back in the event loop.
    struct DeleteLater {
        void operator()(QObject* object) const { object->deleteLater(); }
    };

private:
    /// The screen's time on the stack. Whoever is on a way back keeps it, and with it the screen.
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
