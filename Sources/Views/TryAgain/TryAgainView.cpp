#include "Views/TryAgain/TryAgainView.hpp"

#include "Resources/ModuleBundle.hpp"

#include <QGuiApplication>
#include <QStyleHints>

#include <utility>

namespace quillet {

TryAgainView::TryAgainView(std::unique_ptr<ButtonCreating> buttonFactory, std::unique_ptr<Coloring> colors,
                           std::unique_ptr<Spacing> spacing, std::unique_ptr<Sizing> sizing,
                           TryAgainPresenter presenter, std::function<void()> didTapButton)
    : buttonFactory_(std::move(buttonFactory)),
      colors_(std::move(colors)),
      spacing_(std::move(spacing)),
      sizing_(std::move(sizing)),
      presenter_(std::move(presenter)),
      didTapButton_(std::move(didTapButton)) {}

Button TryAgainView::submitButton() const {
    return buttonFactory_->contained(presenter_.buttonText, presenter_.buttonAccessibilityText);
}

QUrl TryAgainView::icon() const {
    return moduleImage(presenter_.iconName);
}

void TryAgainView::tap() {
    // The view may stay for some time after a tap, where it is the host that leaves.
    const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    const bool isNew = !sinceLastTap_.isValid() || sinceLastTap_.hasExpired(interval);
    sinceLastTap_.start();
    if (isNew) {
        again_.tap(*this, didTapButton_);
    }
}

std::unique_ptr<TryAgainScreen> TryAgainFactory::create(TryAgainPresenter presenter,
                                                        std::function<void()> didTapButton) const {
    return std::make_unique<TryAgainView>(std::make_unique<ButtonFactory>(), std::make_unique<Colors>(),
                                          std::make_unique<Spacer>(), std::make_unique<Sizer>(),
                                          std::move(presenter), std::move(didTapButton));
}

} // namespace quillet
