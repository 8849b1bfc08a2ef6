#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

namespace quillet::testing {

/// Collects the outcomes of calls, in the order in which they come. Copies share what they collect, so that a
/// call that outlives a failed test still has it.
template <typename Outcome>
class Recorder {
public:
    void record(Outcome outcome) {
        const std::lock_guard lock(state_->mutex);
        state_->outcomes.push_back(std::move(outcome));
        state_->threads.push_back(std::this_thread::get_id());
        state_->changed.notify_all();
    }

    /// Waits for the outcome with this index.
    [[nodiscard]] Outcome& wait(std::size_t index = 0) {
        std::unique_lock lock(state_->mutex);
        if (!state_->changed.wait_for(lock, std::chrono::seconds(30),
                                      [&] { return state_->outcomes.size() > index; })) {
            throw std::runtime_error("The call did not complete.");
        }
        return state_->outcomes[index];
    }

    /// Those so far.
    [[nodiscard]] std::vector<Outcome> all() {
        const std::lock_guard lock(state_->mutex);
        return {state_->outcomes.begin(), state_->outcomes.end()};
    }

    [[nodiscard]] std::size_t count() {
        const std::lock_guard lock(state_->mutex);
        return state_->outcomes.size();
    }

    [[nodiscard]] std::thread::id threadOf(std::size_t index = 0) {
        const std::lock_guard lock(state_->mutex);
        return state_->threads.at(index);
    }

private:
    struct State {
        std::mutex mutex;
        std::condition_variable changed;
        std::deque<Outcome> outcomes;
        std::vector<std::thread::id> threads;
    };

    std::shared_ptr<State> state_ = std::make_shared<State>();
};

} // namespace quillet::testing
