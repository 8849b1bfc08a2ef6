#pragma once

#include "Views/Animation/ViewAnimating.hpp"
#include "Views/Dialogs/DialogPresenter.hpp"
#include "Views/Tokens/Coloring.hpp"
#include "Views/Tokens/FontsCreating.hpp"
#include "Views/Tokens/Opacity.hpp"
#include "Views/Tokens/ThemedView.hpp"

#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

namespace quillet {

/// What a dialog does after it was dismissed, one action for each part that can be touched.
struct DialogActions {
    std::function<void()> didTapButton;
    std::function<void()> didTapBackgroundView;
    std::function<void()> didTapCloseIcon;
};

/// The module's modal dialog: a dimmed background and a card with a title, a close icon, an optional image, a
/// message and one button. A touch fades the dialog out and then runs that touch's action. Two quick touches
/// are two dismissals, each with its own action. The screen that shows the dialog owns it; an action runs
/// even if the dialog was replaced during the fade. Main thread only.
class Dialog final : public quillet::ThemedView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by a screen")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString message READ message CONSTANT FINAL)
    Q_PROPERTY(QUrl icon READ icon NOTIFY themeChanged FINAL)
    Q_PROPERTY(QString actionText READ actionText CONSTANT FINAL)
    Q_PROPERTY(QString closeText READ closeText CONSTANT FINAL)
    Q_PROPERTY(QFont titleFont READ titleFont NOTIFY themeChanged FINAL)
    Q_PROPERTY(QFont messageFont READ messageFont NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor textColor READ textColor NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor CONSTANT FINAL)
    Q_PROPERTY(double firstAlpha READ firstAlpha CONSTANT FINAL)
    Q_PROPERTY(double alpha READ alpha NOTIFY alphaChanged FINAL)
    Q_PROPERTY(bool onScreen READ isOnScreen NOTIFY onScreenChanged FINAL)

public:
    Dialog(const DialogPresenter& presenter, std::shared_ptr<ViewAnimating> viewAnimating,
           DialogActions actions);
    Dialog(const DialogWithIconPresenter& presenter, std::shared_ptr<ViewAnimating> viewAnimating,
           DialogActions actions);

    [[nodiscard]] const QString& title() const { return presenter_.title; }
    [[nodiscard]] const QString& message() const { return presenter_.message; }
    [[nodiscard]] QUrl icon() const;
    [[nodiscard]] const QString& actionText() const { return presenter_.actionText; }
    /// What a screen reader calls the close icon.
    [[nodiscard]] QString closeText() const;
    [[nodiscard]] QFont titleFont() const {
        return FontsCreator().font(kel::KelFonts::Headline6, kel::KelFonts::Medium);
    }
    [[nodiscard]] QFont messageFont() const {
        return FontsCreator().font(kel::KelFonts::Subtitle1, kel::KelFonts::Regular);
    }
    [[nodiscard]] QColor textColor() const { return Colors().highEmphasis(); }
    /// What dims the screen: black in either theme.
    [[nodiscard]] QColor backgroundColor() const {
        return kel::KelColors::withAlpha(Qt::black, Opacities().mediumHigh());
    }
    /// Opacity of card and background; 1 until a touch.
    [[nodiscard]] double alpha() const { return alpha_; }
    /// Where the opacity begins that the dialog comes in with: that of a dialog which it replaces on the
    /// screen, else 0.
    [[nodiscard]] double firstAlpha() const { return firstAlpha_; }
    void replace(const Dialog& other) { firstAlpha_ = other.isOnScreen() ? other.alpha() : 0; }
    [[nodiscard]] bool isOnScreen() const { return onScreen_; }

    Q_INVOKABLE void touchButton() { dismiss(actions_.didTapButton); }
    Q_INVOKABLE void touchBackground() { dismiss(actions_.didTapBackgroundView); }
    Q_INVOKABLE void touchCloseIcon() { dismiss(actions_.didTapCloseIcon); }

    /// Fades card and background out over 0.7 s, removes them, then runs `completion`.
    void dismiss(std::function<void()> completion);

Q_SIGNALS:
    void alphaChanged();
    void onScreenChanged();

private:
    void setAlpha(double alpha);
    void removeFromScreen();

    DialogWithIconPresenter presenter_;
    std::shared_ptr<ViewAnimating> viewAnimating_;
    DialogActions actions_;
    double firstAlpha_ = 0;
    double alpha_ = 1;
    bool onScreen_ = true;
};

} // namespace quillet
