#pragma once

#include "Quillet/Errors.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "SaleSummary/Screen/SaleSummaryView.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModelDelegate.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModeling.hpp"

namespace quillet::testing {

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

inline ServiceError transportError(platform::URLError::Code code) {
    return platform::URLError{code, "test"};
}

} // namespace quillet::testing
