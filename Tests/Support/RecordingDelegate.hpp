#pragma once

#include "Quillet/Workers.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quillet::testing {

/// The delegate of all three workers. Records what it is told.
class RecordingDelegate final : public AssociateConsultantToCartWorkerDelegate,
                                public GetOpenOrdersWorkerDelegate,
                                public CheckoutWorkerDelegate {
public:
    ~RecordingDelegate() override { EXPECT_FALSE(isBeingTold_) << "destroyed within its callback"; }

    void didAssociate(const std::shared_ptr<const OrderResult>& result) override {
        record("associate", result->response, *result);
    }
    void didGetOpenOrders(const std::shared_ptr<const OpenOrdersResult>& result) override {
        record("open orders", result->response, *result);
    }
    void willCheckout() override { lines->push_back("checking out"); }
    void didCheckout(const std::shared_ptr<const CheckoutResult>& result) override {
        record("checkout", result->checkoutResponse, *result);
    }

    /// May outlive the delegate.
    std::shared_ptr<std::vector<std::string>> lines = std::make_shared<std::vector<std::string>>();
    /// Called for each result, after it was recorded.
    std::function<void()> then;

private:
    void record(const std::string& call, const auto& response, const auto& result) {
        lines->push_back(call + " " + std::to_string(result.httpStatusCode) +
                         (response ? " with a response" : "") +
                         (result.error ? ": " + description(*result.error) : ""));
        if (then) {
            isBeingTold_ = true;
            then();
            isBeingTold_ = false;
        }
    }

    bool isBeingTold_ = false;
};

} // namespace quillet::testing
