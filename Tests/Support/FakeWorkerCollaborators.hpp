#pragma once

#include "Network/Services/SellOutCartCheckoutServiceRequestable.hpp"
#include "Network/Services/SellOutCartServiceRequestable.hpp"
#include "Network/Services/SellOutCartsStatusOpenServiceRequestable.hpp"
#include "Quillet/Platform/MainQueue.hpp"
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

/// A main queue that the test drains.
class DrainedQueue final : public DispatchQueuing {
public:
    explicit DrainedQueue(std::shared_ptr<platform::MainQueue> queue) : queue_(std::move(queue)) {}
    void async(std::function<void()> block) const override { queue_->async(std::move(block)); }

private:
    std::shared_ptr<platform::MainQueue> queue_;
};

} // namespace quillet::testing
