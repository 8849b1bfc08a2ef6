#pragma once

#include "Platform/Http/Process/HostSignals.hpp"
#include "Quillet/Results.hpp"

#include <cstddef>
#include <memory>
#include <new>
#include <system_error>
#include <thread>
#include <utility>

namespace quillet {

/// How many order lines or products a result holds.
[[nodiscard]] inline std::size_t records(const Order& order) {
    return order.regularItems.size() + order.benefitItems.size();
}
[[nodiscard]] inline std::size_t records(const OrderResult& result) {
    return result.response ? records(result.response->order) : 0;
}
[[nodiscard]] inline std::size_t records(const OpenOrdersResult& result) {
    std::size_t count = 0;
    if (result.response) {
        for (const Order& order : result.response->openOrders) {
            count += 1 + records(order);
        }
    }
    return count;
}
[[nodiscard]] inline std::size_t records(const CheckoutResult& result) {
    return result.checkoutResponse ? result.checkoutResponse->products.size() : 0;
}

/// Shares a result. A large one is freed on a thread of its own, whoever holds it last: that is usually the
/// main thread, and freeing the records of the largest body takes it as long as a frame. Throws
/// std::bad_alloc.
template <typename Result>
[[nodiscard]] std::shared_ptr<const Result> sharedResult(Result result) {
    // Below this, starting a thread costs as much as freeing.
    constexpr std::size_t many = 1000;
    if (records(result) < many) {
        return std::make_shared<const Result>(std::move(result));
    }
    return {new const Result(std::move(result)), [](const Result* last) noexcept {
                std::unique_ptr<const Result> owned(last);
                try {
                    std::thread([owned = std::move(owned)]() mutable {
                        platform::leaveSignalsToTheHost();
                        owned.reset();
                    }).detach();
                } catch (const std::system_error&) {
                    // Without another thread it is freed on this one.
                } catch (const std::bad_alloc&) {
                }
            }};
}

} // namespace quillet
