#pragma once

#include "Checkout/Screen/CheckoutRoutering.hpp"
#include "Checkout/Screen/CheckoutViewModelDelegate.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "Views/Screen/ViewController.hpp"

namespace quillet::testing {

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

} // namespace quillet::testing
