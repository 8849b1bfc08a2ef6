#pragma once

#include "Network/Session/SessionClock.hpp"

#include <mutex>
#include <vector>

namespace quillet::testing {

/// A clock that goes only when it is told to.
class VirtualClock final : public SessionClock {
public:
    [[nodiscard]] std::chrono::steady_clock::time_point now() const override {
        const std::lock_guard lock(mutex_);
        return now_;
    }

    void addListener(std::weak_ptr<SessionClockListening> listener) override {
        const std::lock_guard lock(mutex_);
        listeners_.push_back(std::move(listener));
    }

    void advance(std::chrono::milliseconds duration) {
        std::unique_lock lock(mutex_);
        now_ += duration;
        const auto listeners = listeners_;
        lock.unlock();
        for (const auto& listener : listeners) {
            if (const auto one = listener.lock()) {
                one->clockDidJump();
            }
        }
    }

private:
    mutable std::mutex mutex_;
    std::chrono::steady_clock::time_point now_;
    std::vector<std::weak_ptr<SessionClockListening>> listeners_;
};

} // namespace quillet::testing
