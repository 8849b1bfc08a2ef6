#pragma once

#include "Checkout/Screen/CheckoutRoutering.hpp"
#include "Checkout/Screen/CheckoutViewModelDelegate.hpp"
#include "Quillet/Errors.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "Quillet/Workers.hpp"
#include "SaleSummary/Screen/SaleSummaryView.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModelDelegate.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModeling.hpp"
#include "Views/Screen/ViewController.hpp"

namespace quillet::testing {

/// A worker that records each run and answers only when the test does.
class FakeExecutable final : public Executable {
public:
    FakeExecutable(Log log, std::string name) : log_(std::move(log)), name_(std::move(name)) {}
    [[nodiscard]] bool isFinishedSuccessfully() const override { return succeeded; }
    void execute() override { log_->push_back(name_); }

    bool succeeded = false;

private:
    Log log_;
    std::string name_;
};

class FakeCheckoutRouter final : public CheckoutRoutering {
public:
    explicit FakeCheckoutRouter(Log log) : log_(std::move(log)) {}
    void showAllProductsAdded(const ViewController& from, const SharedCheckoutResponse& response) override {
        show("all added ", from, response);
    }
    void showProductsPartiallyAdded(const ViewController& from,
                                    const SharedCheckoutResponse& response) override {
        show("partially added ", from, response);
    }
    void showNoProductAdded(const ViewController& from, const SharedCheckoutResponse& response) override {
        show("none added ", from, response);
    }

private:
    void show(const std::string& route, const ViewController& from, const SharedCheckoutResponse& response) {
        log_->push_back(route + response->submittedOrderId);
        if (from.originViewController()) {
            log_->push_back("from a screen that the fake does not have");
        }
    }

    Log log_;
};

/// A screen that records its calls and keeps the dialog's actions.
class FakeCheckoutScreen final : public CheckoutViewModelDelegate {
public:
    FakeCheckoutScreen(Log log, std::weak_ptr<QuilletNavigationDelegate> host)
        : log_(std::move(log)), router_(log_), host_(std::move(host)) {}

    void startLoading() override { log_->push_back("startLoading"); }
    void stopLoading() override { log_->push_back("stopLoading"); }
    void showDialog(const DialogPresenter& presenter, DialogActions actions) override {
        log_->push_back(
            "dialog: " +
            (presenter.title + " | " + presenter.message + " | " + presenter.actionText).toStdString());
        dialog = std::move(actions);
    }
    void removeTryAgainView() override { log_->push_back("removeTryAgainView"); }
    [[nodiscard]] CheckoutRoutering& router() override { return router_; }
    [[nodiscard]] std::unique_ptr<ViewController> wrapped() override {
        return std::make_unique<ViewControllerWrapper>(std::weak_ptr<platform::QuickViewController>());
    }
    [[nodiscard]] std::shared_ptr<QuilletNavigationDelegate> navigationDelegate() const override {
        return host_.lock();
    }

    DialogActions dialog;

private:
    Log log_;
    FakeCheckoutRouter router_;
    std::weak_ptr<QuilletNavigationDelegate> host_;
};

/// A result as workers deliver it.
template <typename Result>
std::shared_ptr<const Result> shared(Result result) {
    return std::make_shared<const Result>(std::move(result));
}

class FakeSaleSummaryViewModel final : public SaleSummaryViewModeling {
public:
    explicit FakeSaleSummaryViewModel(Log log) : log_(std::move(log)) {}
    void setDelegate(std::weak_ptr<SaleSummaryViewModelDelegate>) override {}
    void trackAnalyticsScreen() override { log_->push_back("trackAnalyticsScreen"); }
    void doRequests() override { log_->push_back("doRequests"); }
    void tryAgainDoRequests() override { log_->push_back("tryAgainDoRequests"); }
    void trackSendOrdersToCart() override { log_->push_back("trackSendOrdersToCart"); }

private:
    Log log_;
};

/// A screen that records its calls and keeps what was shown last.
class FakeSaleSummaryScreen final : public SaleSummaryViewModelDelegate {
public:
    FakeSaleSummaryScreen(Log log, std::weak_ptr<QuilletNavigationDelegate> host = {})
        : log_(std::move(log)), viewModel_(log_), host_(std::move(host)) {}

    void startLoading() override { log_->push_back("startLoading"); }
    void stopLoading() override { log_->push_back("stopLoading"); }
    void showDialog(const DialogPresenter& presenter, DialogActions actions) override {
        showDialog({presenter.title, presenter.message, "no icon", presenter.actionText}, std::move(actions));
    }
    void showDialog(const DialogWithIconPresenter& presenter, DialogActions actions) override {
        log_->push_back("dialog: " + (presenter.iconName + " | " + presenter.title + " | " +
                                      presenter.message + " | " + presenter.actionText)
                                         .toStdString());
        dialog = std::move(actions);
    }
    void setContentView(std::unique_ptr<SaleSummaryScreen> view) override { content = std::move(view); }
    void addContentView() override { log_->push_back(content ? "content" : "no content"); }
    void setTryAgainView(std::unique_ptr<TryAgainScreen> view) override { tryAgain = std::move(view); }
    void addTryAgainView() override {
        const TryAgainPresenter& shown = tryAgain->presenter();
        log_->push_back("try again: " + (shown.iconName + " | " + shown.messageText + " | " +
                                         shown.buttonText + " | " + shown.buttonAccessibilityText)
                                            .toStdString());
    }
    void removeTryAgainView() override { log_->push_back("removeTryAgainView"); }
    [[nodiscard]] const SaleSummaryViewCreating& contentViewFactory() const override {
        return contentViewFactory_;
    }
    [[nodiscard]] const TryAgainCreating& tryAgainFactory() const override { return tryAgainFactory_; }
    [[nodiscard]] std::weak_ptr<SaleSummaryViewDelegate> viewDelegate() override { return {}; }
    [[nodiscard]] std::shared_ptr<QuilletNavigationDelegate> navigationDelegate() const override {
        return host_.lock();
    }
    [[nodiscard]] SaleSummaryViewModeling& viewModel() override { return viewModel_; }

    DialogActions dialog;
    std::unique_ptr<SaleSummaryScreen> content;
    std::shared_ptr<TryAgainScreen> tryAgain;

private:
    Log log_;
    FakeSaleSummaryViewModel viewModel_;
    std::weak_ptr<QuilletNavigationDelegate> host_;
    SaleSummaryViewFactory contentViewFactory_;
    TryAgainFactory tryAgainFactory_;
};

/// A refusal as decoded from a server error.
inline ServerError refusal(const std::string& message) {
    return {.error = {.response = {}, .status = 422, .message = message}, .statusCode = 422, .path = "/"};
}

} // namespace quillet::testing
