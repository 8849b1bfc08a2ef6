#include "Views/Dialogs/Dialog.hpp"

#include "Resources/Localization.hpp"
#include "Resources/ModuleBundle.hpp"

#include <QPointer>

#include <utility>

namespace quillet {

namespace {
constexpr std::chrono::milliseconds fadeDuration{700};
}

Dialog::Dialog(const DialogPresenter& presenter, std::shared_ptr<ViewAnimating> viewAnimating,
               DialogActions actions)
    : Dialog(DialogWithIconPresenter{presenter.title, presenter.message, {}, presenter.actionText},
             std::move(viewAnimating), std::move(actions)) {}

Dialog::Dialog(const DialogWithIconPresenter& presenter, std::shared_ptr<ViewAnimating> viewAnimating,
               DialogActions actions)
    : presenter_(presenter), viewAnimating_(std::move(viewAnimating)), actions_(std::move(actions)) {}

QUrl Dialog::icon() const {
    return presenter_.iconName.isEmpty() ? QUrl() : moduleImage(presenter_.iconName);
}

QString Dialog::closeText() const {
    return Localization::close();
}

void Dialog::dismiss(std::function<void()> completion) {
    const QPointer<Dialog> self(this);
    viewAnimating_->animate(
        fadeDuration,
        [self, from = alpha_](double progress) {
            if (self) {
                self->setAlpha(std::min(self->alpha_, from * (1 - progress)));
            }
        },
        [self, completion = std::move(completion)] {
            if (self) {
                self->removeFromScreen();
            }
            if (completion) {
                completion();
            }
        });
}

void Dialog::setAlpha(double alpha) {
    if (alpha != alpha_) {
        alpha_ = alpha;
        Q_EMIT alphaChanged();
    }
}

void Dialog::removeFromScreen() {
    if (onScreen_) {
        onScreen_ = false;
        Q_EMIT onScreenChanged();
    }
}

} // namespace quillet
