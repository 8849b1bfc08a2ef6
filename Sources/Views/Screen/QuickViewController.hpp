#pragma once

#include "Views/Tokens/ThemedView.hpp"

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <functional>
#include <memory>

namespace quillet {

class NavigationController;

/// A screen: it owns everything behind what it shows, and a QML file draws it. Made by a factory, it lives in
/// a std::shared_ptr; once it is pushed, the QML item that draws it is its one owner, so taking the screen
/// off the stack destroys the whole graph. The controller knows its item only through the navigation
/// controller, never directly.
///
/// Lifecycle, all on the main thread: `viewDidLoad` once, when the item has been made; `viewWillAppear` and
/// `viewWillDisappear` on each entering and leaving of the top of the stack.
class QuickViewController : public ThemedView, public std::enable_shared_from_this<QuickViewController> {
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY titleChanged FINAL)
    Q_PROPERTY(bool hidesBackButton READ hidesBackButton NOTIFY hidesBackButtonChanged FINAL)
    Q_PROPERTY(bool continuesBar READ continuesBar NOTIFY continuesBarChanged FINAL)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY backgroundColorChanged FINAL)

public:
    ~QuickViewController() override;

    /// What the host's bar shows while this screen is on top.
    [[nodiscard]] const QString& title() const { return title_; }
    /// Whether the host's bar is to show no way back from this screen.
    [[nodiscard]] bool hidesBackButton() const { return hidesBackButton_; }
    /// Whether the screen goes on where the host's bar ends, as with a tab bar: no line belongs between them.
    [[nodiscard]] bool continuesBar() const { return continuesBar_; }
    [[nodiscard]] QColor backgroundColor() const { return background_ ? background_() : QColor(); }
    void setTitle(const QString& title);
    void setHidesBackButton(bool hides);

    /// The stack that this screen is on; null before it was pushed, once it has left (though it may still be
    /// fading out), and when the stack is gone.
    [[nodiscard]] NavigationController* navigationController() const;
    /// The stack that this screen was pushed on, whether or not it is there yet or still.
    [[nodiscard]] NavigationController* pushingController() const;
    void setNavigationController(NavigationController* navigation);

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
    QuickViewController();
    /// A colour to be read anew when the theme changes.
    void setBackground(std::function<QColor()> color);
    void setContinuesBar(bool continues);

    /// A view that is on screen may be in the middle of telling about a tap when it is replaced: it goes once
    /// control is back in the event loop.
    struct DeleteLater {
        void operator()(QObject* object) const { object->deleteLater(); }
    };

private:
    QString title_;
    std::function<QColor()> background_;
    bool hidesBackButton_ = false;
    bool continuesBar_ = false;
    QPointer<NavigationController> navigation_;
};

} // namespace quillet
