#include "Views/TryAgain/TryAgainView.hpp"

#include "Resources/ModuleBundle.hpp"

#include <utility>

namespace quillet {

TryAgainView::TryAgainView(TryAgainPresenter presenter, std::function<void()> didTapButton)
    : presenter_(std::move(presenter)), didTapButton_(std::move(didTapButton)) {}

QUrl TryAgainView::icon() const {
    return moduleImage(presenter_.iconName);
}

std::unique_ptr<TryAgainScreen> TryAgainFactory::create(TryAgainPresenter presenter,
                                                        std::function<void()> didTapButton) const {
    return std::make_unique<TryAgainView>(std::move(presenter), std::move(didTapButton));
}

} // namespace quillet
