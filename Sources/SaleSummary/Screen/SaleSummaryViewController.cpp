#include "SaleSummary/Screen/SaleSummaryViewController.hpp"

#include "Resources/Localization.hpp"

#include <utility>

namespace quillet {

SaleSummaryViewController::SaleSummaryViewController(
    std::shared_ptr<SaleSummaryViewModeling> viewModel, std::unique_ptr<Coloring> colors,
    std::unique_ptr<SaleSummaryRoutering> router,
    std::unique_ptr<ViewControllerWrapperCreating> wrapperFactory,
    std::unique_ptr<SaleSummaryViewCreating> contentViewFactory,
    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate,
    std::unique_ptr<DialogCreating> dialogFactory, std::unique_ptr<TryAgainCreating> tryAgainFactory)
    : ModuleViewController(std::move(colors)),
      viewModel_(std::move(viewModel)),
      router_(std::move(router)),
      wrapperFactory_(std::move(wrapperFactory)),
      contentViewFactory_(std::move(contentViewFactory)),
      navigationDelegate_(std::move(navigationDelegate)),
      dialogFactory_(std::move(dialogFactory)),
      tryAgainFactory_(std::move(tryAgainFactory)) {}

SaleSummaryViewController::~SaleSummaryViewController() = default;

QUrl SaleSummaryViewController::viewUrl() const {
    return QUrl(QStringLiteral("qrc:/qt/qml/Quillet/SaleSummaryPage.qml"));
}

void SaleSummaryViewController::viewDidLoad() {
    viewModel_->trackAnalyticsScreen();
    viewModel_->doRequests();
}

void SaleSummaryViewController::viewWillAppear() {
    setTitle(Localization::saleSummary());
}

void SaleSummaryViewController::viewWillDisappear() {
    setTitle(QString());
}

void SaleSummaryViewController::startLoading() {
    showLoading();
}

void SaleSummaryViewController::stopLoading() {
    hideLoading();
}

void SaleSummaryViewController::showDialog(const DialogPresenter& presenter, DialogActions actions) {
    presentDialog(presenter, std::move(actions));
}

void SaleSummaryViewController::showDialog(const DialogWithIconPresenter& presenter, DialogActions actions) {
    presentDialog(presenter, std::move(actions));
}

void SaleSummaryViewController::setContentView(std::unique_ptr<SaleSummaryScreen> view) {
    contentView_.reset(view.release());
}

void SaleSummaryViewController::addContentView() {
    if (contentView_) {
        contentViewShown_ = true;
        Q_EMIT contentViewChanged();
        setContinuesBar(!isTryAgainViewShown());
    }
}

SaleSummaryView* SaleSummaryViewController::shownContentView() const {
    return contentViewShown_ ? qobject_cast<SaleSummaryView*>(contentView_.get()) : nullptr;
}

void SaleSummaryViewController::setTryAgainView(std::unique_ptr<TryAgainScreen> view) {
    putTryAgainView(std::move(view));
}

void SaleSummaryViewController::addTryAgainView() {
    showTryAgainView(true);
    setContinuesBar(contentViewShown_ && !isTryAgainViewShown());
}

void SaleSummaryViewController::removeTryAgainView() {
    showTryAgainView(false);
    setContinuesBar(contentViewShown_);
}

std::weak_ptr<SaleSummaryViewDelegate> SaleSummaryViewController::viewDelegate() {
    return wayBackTo(*this);
}

std::shared_ptr<QuilletNavigationDelegate> SaleSummaryViewController::navigationDelegate() const {
    return navigationDelegate_.lock();
}

void SaleSummaryViewController::didTapButton() {
    viewModel_->trackSendOrdersToCart();
    const auto origin = wrapperFactory_->create(weak_from_this());
    router_->showCheckout(origin.get());
}

} // namespace quillet
