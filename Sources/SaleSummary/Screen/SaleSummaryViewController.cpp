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
    : viewModel_(std::move(viewModel)),
      colors_(std::move(colors)),
      router_(std::move(router)),
      wrapperFactory_(std::move(wrapperFactory)),
      contentViewFactory_(std::move(contentViewFactory)),
      navigationDelegate_(std::move(navigationDelegate)),
      dialogFactory_(std::move(dialogFactory)),
      tryAgainFactory_(std::move(tryAgainFactory)) {}

SaleSummaryViewController::~SaleSummaryViewController() = default;

QUrl SaleSummaryViewController::viewUrl() const {
    return QUrl(QStringLiteral("qrc:/qt/qml/Quillet/SaleSummary/SaleSummaryViewController.qml"));
}

void SaleSummaryViewController::viewDidLoad() {
    setBackground([this] { return colors_->background(); });
    viewModel_->trackAnalyticsScreen();
    viewModel_->doRequests();
}

void SaleSummaryViewController::viewWillAppear() {
    setTitle(Localization::saleSummary());
}

void SaleSummaryViewController::viewWillDisappear() {
    setTitle(QString());
}

QObject* SaleSummaryViewController::loadingView() {
    if (!loadingView_) {
        loadingView_ = std::make_unique<LoadingView>();
    }
    return loadingView_.get();
}

void SaleSummaryViewController::startLoading() {
    static_cast<void>(loadingView());
    loadingView_->startLoading();
}

void SaleSummaryViewController::stopLoading() {
    if (loadingView_) {
        loadingView_->stopLoading();
    }
}

template <typename Presenter>
void SaleSummaryViewController::show(const Presenter& presenter, DialogActions actions) {
    const auto previous = std::move(dialogMessage_);
    dialogMessage_.reset(
        new Dialog(presenter, std::make_shared<ViewAnimatingWrapper>(), whileHere(std::move(actions))));
    Q_EMIT dialogMessageChanged();
}

void SaleSummaryViewController::showDialog(const DialogPresenter& presenter, DialogActions actions) {
    show(presenter, std::move(actions));
}

void SaleSummaryViewController::showDialog(const DialogWithIconPresenter& presenter, DialogActions actions) {
    show(presenter, std::move(actions));
}

void SaleSummaryViewController::setContentView(std::unique_ptr<SaleSummaryScreen> view) {
    contentView_.reset(view.release());
}

void SaleSummaryViewController::addContentView() {
    if (contentView_) {
        shownContentView_ = contentView_.get();
        Q_EMIT contentViewChanged();
        setContinuesBar(!shownTryAgainView_);
    }
}

void SaleSummaryViewController::setTryAgainView(std::unique_ptr<TryAgainScreen> view) {
    tryAgainView_.reset(view.release());
}

void SaleSummaryViewController::addTryAgainView() {
    if (tryAgainView_) {
        shownTryAgainView_ = tryAgainView_.get();
        Q_EMIT tryAgainViewChanged();
        setContinuesBar(false);
    }
}

void SaleSummaryViewController::removeTryAgainView() {
    shownTryAgainView_ = nullptr;
    Q_EMIT tryAgainViewChanged();
    setContinuesBar(shownContentView_);
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
