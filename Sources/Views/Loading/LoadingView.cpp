#include "Views/Loading/LoadingView.hpp"

namespace quillet {

using Indicator = ProgressIndicatorCircular;

ProgressIndicatorCircular* LoadingView::progressIndicator() {
    if (!progressIndicator_) {
        progressIndicator_ = std::make_unique<Indicator>(std::make_unique<ProgressIndicatorCircularAnimator>());
    }
    return progressIndicator_.get();
}

void LoadingView::startLoading() {
    progressIndicator()->configure(Indicator::Action::showAndStartAnimation, Indicator::Size::medium);
    progressIndicator()->configure(false);
    setOnScreen(true);
}

void LoadingView::stopLoading() {
    progressIndicator()->configure(Indicator::Action::hideAndStopAnimation, Indicator::Size::medium);
    setOnScreen(false);
}

void LoadingView::setOnScreen(bool onScreen) {
    if (onScreen != onScreen_) {
        onScreen_ = onScreen;
        Q_EMIT onScreenChanged();
    }
}

} // namespace quillet
