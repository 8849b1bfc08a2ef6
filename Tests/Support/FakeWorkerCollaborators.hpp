#pragma once

#include "Network/Services/SellOutCartCheckoutServiceRequestable.hpp"
#include "Network/Services/SellOutCartServiceRequestable.hpp"
#include "Network/Services/SellOutCartsStatusOpenServiceRequestable.hpp"
#include "Quillet/Platform/MainQueue.hpp"
#include "Quillet/Workers.hpp"
#include "Workers/DispatchQueuing.hpp"

#include <memory>
#include <string>
#include <vector>

namespace quillet::testing {

/// The calls between a worker and its collaborators, in order, and the pending completions.
template <typename Result>
struct Conversation {
    std::vector<std::string> log;
    std::vector<std::function<void(Result)>> pending;
};

class FakeAssociateService final : public SellOutCartServiceRequestable {
public:
    explicit FakeAssociateService(std::shared_ptr<Conversation<OrderResult>> talk) : talk_(std::move(talk)) {}
    void associateConsultantToCart(const std::string& cartUUID, std::uint64_t consultantId,
                                   Completion completion) const override {
        talk_->log.push_back("call " + cartUUID + " " + std::to_string(consultantId));
        talk_->pending.push_back(std::move(completion));
    }

private:
    std::shared_ptr<Conversation<OrderResult>> talk_;
};

class FakeOpenOrdersService final : public SellOutCartsStatusOpenServiceRequestable {
public:
    explicit FakeOpenOrdersService(std::shared_ptr<Conversation<OpenOrdersResult>> talk)
        : talk_(std::move(talk)) {}
    void getOpenOrders(Completion completion) const override {
        talk_->log.push_back("call");
        talk_->pending.push_back(std::move(completion));
    }

private:
    std::shared_ptr<Conversation<OpenOrdersResult>> talk_;
};

class FakeCheckoutService final : public SellOutCartCheckoutServiceRequestable {
public:
    explicit FakeCheckoutService(std::shared_ptr<Conversation<CheckoutResult>> talk)
        : talk_(std::move(talk)) {}
    void checkout(Completion completion) const override {
        talk_->log.push_back("call");
        talk_->pending.push_back(std::move(completion));
    }

private:
    std::shared_ptr<Conversation<CheckoutResult>> talk_;
};

/// Records the status of each result that it gets.
template <typename Result, typename Base>
class FakeWorkerDelegate : public Base {
public:
    explicit FakeWorkerDelegate(std::shared_ptr<Conversation<Result>> talk) : talk_(std::move(talk)) {}

protected:
    void took(const Result& result) {
        talk_->log.push_back("result " + std::to_string(result.httpStatusCode));
    }

    std::shared_ptr<Conversation<Result>> talk_;
};

class FakeAssociateDelegate final
    : public FakeWorkerDelegate<OrderResult, AssociateConsultantToCartWorkerDelegate> {
public:
    using FakeWorkerDelegate::FakeWorkerDelegate;
    void didAssociate(const std::shared_ptr<const OrderResult>& result) override { took(*result); }
};

class FakeOpenOrdersDelegate final
    : public FakeWorkerDelegate<OpenOrdersResult, GetOpenOrdersWorkerDelegate> {
public:
    using FakeWorkerDelegate::FakeWorkerDelegate;
    void didGetOpenOrders(const std::shared_ptr<const OpenOrdersResult>& result) override { took(*result); }
};

class FakeCheckoutDelegate final : public FakeWorkerDelegate<CheckoutResult, CheckoutWorkerDelegate> {
public:
    using FakeWorkerDelegate::FakeWorkerDelegate;
    void willCheckout() override { talk_->log.push_back("starting"); }
    void didCheckout(const std::shared_ptr<const CheckoutResult>& result) override { took(*result); }
};

/// A main queue that the test drains.
class DrainedQueue final : public DispatchQueuing {
public:
    explicit DrainedQueue(std::shared_ptr<platform::MainQueue> queue) : queue_(std::move(queue)) {}
    void async(std::function<void()> block) const override { queue_->async(std::move(block)); }

private:
    std::shared_ptr<platform::MainQueue> queue_;
};

} // namespace quillet::testing
