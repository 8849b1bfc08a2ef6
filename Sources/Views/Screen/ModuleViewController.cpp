#include "Views/Screen/ModuleViewController.hpp"

#include <utility>

namespace quillet {

ModuleViewController::ModuleViewController(std::unique_ptr<Coloring> colors) : colors_(std::move(colors)) {
    const auto readBackground = [this] { setBackgroundColor(colors_->background()); };
    connect(&kel::KelAppearance::current(), &kel::KelAppearance::changed, this, readBackground);
    readBackground();
}

ModuleViewController::~ModuleViewController() = default;

LoadingView* ModuleViewController::loadingView() {
    if (!loadingView_) {
        loadingView_ = std::make_unique<LoadingView>();
    }
    return loadingView_.get();
}

TryAgainView* ModuleViewController::shownTryAgainView() const {
    return tryAgainViewShown_ ? qobject_cast<TryAgainView*>(tryAgainView_.get()) : nullptr;
}

void ModuleViewController::showLoading() {
    loadingView()->startLoading();
}

void ModuleViewController::hideLoading() {
    if (loadingView_) {
        loadingView_->stopLoading();
    }
}

void ModuleViewController::setDialog(std::unique_ptr<Dialog> dialog) {
    if (dialog_) {
        dialog->replace(*dialog_);
    }
    dialog_.reset(dialog.release());
    Q_EMIT dialogChanged();
}

DialogActions ModuleViewController::whileHere(DialogActions actions) const {
    // Each of several quick touches dismisses the dialog, but it has one answer: that of the first.
    const auto isAnswered = std::make_shared<bool>(false);
    for (auto* action : {&actions.didTapButton, &actions.didTapBackgroundView, &actions.didTapCloseIcon}) {
        *action = [stay = stay(), isAnswered, act = std::move(*action)] {
            if (const auto here = stay.lock(); here && !std::exchange(*isAnswered, true) && act) {
                act();
            }
        };
    }
    return actions;
}

void ModuleViewController::putTryAgainView(std::unique_ptr<TryAgainScreen> view) {
    tryAgainView_.reset(view.release());
}

void ModuleViewController::showTryAgainView(bool shows) {
    tryAgainViewShown_ = shows;
    Q_EMIT tryAgainViewChanged();
}

} // namespace quillet
