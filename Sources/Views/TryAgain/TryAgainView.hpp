#pragma once

#include "Platform/Screens/QueuedTap.hpp"
#include "Views/Tokens/ButtonCreating.hpp"
#include "Views/Tokens/Coloring.hpp"
#include "Views/Tokens/Sizing.hpp"
#include "Views/Tokens/Spacing.hpp"
#include "Views/Tokens/ThemedView.hpp"

#include <QElapsedTimer>
#include <QUrl>

#include <functional>
#include <memory>

namespace quillet {

/// What a try-again view shows.
struct TryAgainPresenter {
    /// An image of the module's resources, by name.
    QString iconName;
    QString messageText;
    QString buttonText;
    /// Object name for test automation, independent of the language.
    QString buttonAccessibilityText;
};

/// The view that replaces a screen's content after a failure, with one button. Owned by the screen that shows
/// it. Main thread only.
class TryAgainScreen : public quillet::ThemedView {
    Q_OBJECT

public:
    [[nodiscard]] virtual const TryAgainPresenter& presenter() const = 0;
    /// The button was tapped.
    virtual void tap() = 0;
};

class TryAgainView final : public quillet::TryAgainScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by a TryAgainFactory")
    Q_PROPERTY(QUrl icon READ icon NOTIFY themeChanged FINAL)
    Q_PROPERTY(QString message READ message CONSTANT FINAL)
    Q_PROPERTY(quillet::Button submitButton READ submitButton CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor labelColor READ labelColor NOTIFY themeChanged FINAL)
    Q_PROPERTY(int iconSize READ iconSize CONSTANT FINAL)

public:
    TryAgainView(std::unique_ptr<ButtonCreating> buttonFactory, std::unique_ptr<Coloring> colors,
                 std::unique_ptr<Spacing> spacing, std::unique_ptr<Sizing> sizing,
                 TryAgainPresenter presenter, std::function<void()> didTapButton);

    [[nodiscard]] const TryAgainPresenter& presenter() const override { return presenter_; }
    [[nodiscard]] QUrl icon() const;
    [[nodiscard]] QString message() const { return presenter_.messageText; }
    [[nodiscard]] Button submitButton() const;
    [[nodiscard]] QColor backgroundColor() const { return colors_->background(); }
    [[nodiscard]] QColor labelColor() const { return colors_->highEmphasis(); }
    /// The image is five of the size token semiX wide and high.
    [[nodiscard]] int iconSize() const { return 5 * sizing_->semiX(); }
    /// Taps that follow each other as fast as a double click are one tap.
    Q_INVOKABLE void tap() override;

private:
    std::unique_ptr<ButtonCreating> buttonFactory_;
    std::unique_ptr<Coloring> colors_;
    // Passed in by the factory but not used: the QML that lays out the view reads these tokens from the
    // design system.
    std::unique_ptr<Spacing> spacing_;
    std::unique_ptr<Sizing> sizing_;
    TryAgainPresenter presenter_;
    std::function<void()> didTapButton_;
    QElapsedTimer sinceLastTap_;
    platform::QueuedTap again_;
};

/// Makes try-again views.
class TryAgainCreating {
public:
    virtual ~TryAgainCreating() = default;
    [[nodiscard]] virtual std::unique_ptr<TryAgainScreen>
    create(TryAgainPresenter presenter, std::function<void()> didTapButton) const = 0;
};

class TryAgainFactory final : public TryAgainCreating {
public:
    [[nodiscard]] std::unique_ptr<TryAgainScreen> create(TryAgainPresenter presenter,
                                                         std::function<void()> didTapButton) const override;
};

} // namespace quillet
