#include "Views/Loading/LoadingView.hpp"

#include "Resources/Localization.hpp"

#include <chrono>
#include <utility>

namespace quillet {

using Indicator = ProgressIndicatorCircular;

LoadingView::LoadingView(std::unique_ptr<Coloring> colors, std::unique_ptr<Sizing> sizer)
    : colors_(std::move(colors)), sizer_(std::move(sizer)) {
    patience_.setSingleShot(true);
    patience_.setInterval(std::chrono::seconds(5));
    connect(&patience_, &QTimer::timeout, this, [this] { setNotice(Localization::takesLongerThanUsual()); });
}

Overlay& LoadingView::overylay() {
    return overylay_ ? *overylay_ : overylay_.emplace();
}

ProgressIndicatorCircular* LoadingView::progressIndicator() {
    if (!progressIndicator_) {
        progressIndicator_ =
            std::make_unique<Indicator>(std::make_unique<ProgressIndicatorCircularAnimator>());
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

QString LoadingView::name() const {
    return Localization::loading();
}

void LoadingView::setOnScreen(bool onScreen) {
    if (onScreen != onScreen_) {
        onScreen_ = onScreen;
        if (onScreen) {
            setNotice({});
            patience_.start();
        } else {
            patience_.stop();
        }
        Q_EMIT onScreenChanged();
    }
}

void LoadingView::setNotice(const QString& notice) {
    if (notice != notice_) {
        notice_ = notice;
        Q_EMIT noticeChanged();
    }
}

} // namespace quillet
