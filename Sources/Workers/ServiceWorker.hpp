#pragma once

#include "Network/Services/ServiceCall.hpp"
#include "Quillet/Workers.hpp"
#include "Workers/DispatchQueuing.hpp"
#include "Workers/SharedResult.hpp"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <new>
#include <thread>
#include <utility>

namespace quillet {

/// Base of the workers: runs one service call, stores whether it brought a response, and delivers the result
/// to the delegate on the main queue. Held by std::shared_ptr. Pending calls and queued blocks hold it
/// weakly, so results of a destroyed worker are dropped. If memory runs out the result is an error.
/// `response` is the member of a `Result` whose presence means success, `didComplete` the member function of
/// a `Delegate` that takes the outcome.
template <typename Result, auto response, typename Delegate, auto didComplete>
class ServiceWorker
    : public Executable,
      public std::enable_shared_from_this<ServiceWorker<Result, response, Delegate, didComplete>> {
public:
    [[nodiscard]] bool isFinishedSuccessfully() const final {
        return isFinishedSuccessfully_.load(std::memory_order_acquire);
    }

    void execute() final {
        willCall();
        try {
            call([self = this->weak_from_this()](Result result) {
                if (const auto worker = self.lock()) {
                    worker->end(std::move(result));
                }
            });
        } catch (const std::bad_alloc&) {
            end(resultWithoutMemory<Result>());
        }
    }

    /// Set once by whoever assembles the worker, before the first run.
    void setDelegate(std::weak_ptr<Delegate> delegate) { delegate_ = std::move(delegate); }
    /// Null before it was set, and once it is gone.
    [[nodiscard]] std::shared_ptr<Delegate> delegate() const { return delegate_.lock(); }

protected:
    using Completion = std::function<void(Result)>;

    explicit ServiceWorker(std::unique_ptr<const DispatchQueuing> dispatchMainQueue)
        : dispatchMainQueue_(std::move(dispatchMainQueue)) {}

private:
    virtual void willCall() {}
    /// Calls the completion once, on any thread; or throws std::bad_alloc and never calls it.
    virtual void call(Completion completion) = 0;

    // Called on the service's thread. A user waits for every result, so if it cannot be queued for lack of
    // memory, the response is freed and an error is queued instead, with retries until that succeeds.
    void end(Result result) noexcept {
        while (!queue(std::move(result))) {
            result = resultWithoutMemory<Result>();
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
    }

    // Returns false if memory runs out. The flag is written before the block is queued, so the delegate sees
    // it; it is atomic for readers at other times.
    bool queue(Result result) noexcept try {
        isFinishedSuccessfully_.store((result.*response).has_value(), std::memory_order_release);
        auto outcome = sharedResult(std::move(result));
        dispatchMainQueue_->async([self = this->weak_from_this(), outcome = std::move(outcome)] {
            if (const auto worker = self.lock()) {
                if (const auto target = worker->delegate()) {
                    ((*target).*didComplete)(outcome);
                }
            }
        });
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }

    std::weak_ptr<Delegate> delegate_;
    std::atomic<bool> isFinishedSuccessfully_ = false;
    std::unique_ptr<const DispatchQueuing> dispatchMainQueue_;
};

} // namespace quillet
