#pragma once

#include "Quillet/Platform/URLSessionConfiguration.hpp"

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <stdexcept>
#include <vector>

namespace quillet::testing {

/// A clock that only the test advances. Threads: any.
class ManualClock final : public platform::SessionClock {
public:
    [[nodiscard]] std::chrono::steady_clock::time_point now() const override {
        const std::lock_guard lock(mutex_);
        ++reads_;
        wasRead_.notify_all();
        return now_;
    }

    void addListener(std::weak_ptr<platform::SessionClockListening> listener) override {
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

    /// Waits until a session has done all that is due now. A session reads the clock twice per round: to find
    /// expired calls and to compute its sleep. Two wake-ups with two readings each therefore include a whole
    /// round.
    void settle() {
        for (int round = 0; round < 2; ++round) {
            std::unique_lock lock(mutex_);
            const auto whole = reads_ + 2;
            lock.unlock();
            advance({});
            lock.lock();
            if (!wasRead_.wait_for(lock, std::chrono::seconds(30), [&] { return reads_ >= whole; })) {
                throw std::runtime_error("No session looks at the clock.");
            }
        }
    }

private:
    mutable std::mutex mutex_;
    mutable std::condition_variable wasRead_;
    mutable std::size_t reads_ = 0;
    std::chrono::steady_clock::time_point now_;
    std::vector<std::weak_ptr<platform::SessionClockListening>> listeners_;
};

} // namespace quillet::testing
