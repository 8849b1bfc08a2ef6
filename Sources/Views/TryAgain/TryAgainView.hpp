#pragma once

#include <QObject>
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
    /// The name by which automation finds the button, whatever language it shows.
    QString buttonAccessibilityText;
};

/// The view that stands in place of a screen's content after a failure, with one button. The screen that
/// shows it owns it. Main thread only.
class TryAgainScreen : public QObject {
    Q_OBJECT

public:
    [[nodiscard]] virtual const TryAgainPresenter& presenter() const = 0;
    /// The button was tapped.
    virtual void tap() = 0;
};

class TryAgainView final : public TryAgainScreen {
    Q_OBJECT
    Q_PROPERTY(QUrl icon READ icon CONSTANT FINAL)
    Q_PROPERTY(QString message READ message CONSTANT FINAL)
    Q_PROPERTY(QString buttonText READ buttonText CONSTANT FINAL)
    Q_PROPERTY(QString buttonAccessibilityText READ buttonAccessibilityText CONSTANT FINAL)

public:
    TryAgainView(TryAgainPresenter presenter, std::function<void()> didTapButton);

    [[nodiscard]] const TryAgainPresenter& presenter() const override { return presenter_; }
    [[nodiscard]] QUrl icon() const;
    [[nodiscard]] QString message() const { return presenter_.messageText; }
    [[nodiscard]] QString buttonText() const { return presenter_.buttonText; }
    [[nodiscard]] QString buttonAccessibilityText() const { return presenter_.buttonAccessibilityText; }
    Q_INVOKABLE void tap() override { didTapButton_(); }

private:
    TryAgainPresenter presenter_;
    std::function<void()> didTapButton_;
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
