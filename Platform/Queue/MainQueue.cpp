#include "Quillet/Platform/MainQueue.hpp"

#include <utility>

namespace quillet::platform {

void MainQueue::async(std::function<void()> block) {
    Blocks queued;
    queued.push_back(std::move(block));
    const std::lock_guard lock(mutex_);
    // The calls that may throw come first: a queued block without a wake-up might never run.
    if (wakeUp_) {
        wakeUp_();
    }
    blocks_.splice(blocks_.end(), queued);
}

std::size_t MainQueue::drain() {
    std::unique_lock lock(mutex_);
    const std::size_t waiting = blocks_.size();
    std::size_t ran = 0;
    // Blocks are removed one by one, so that a nested drain continues with the next one in order.
    for (; ran < waiting && !blocks_.empty(); ++ran) {
        Blocks next;
        next.splice(next.end(), blocks_, blocks_.begin());
        lock.unlock();
        next.front()();
        next.clear();
        lock.lock();
    }
    return ran;
}

void MainQueue::setWakeUp(std::function<void()> wakeUp) {
    const std::lock_guard lock(mutex_);
    wakeUp_ = std::move(wakeUp);
    if (wakeUp_ && !blocks_.empty()) {
        wakeUp_();
    }
}

MainQueue& mainQueue() {
    static auto& queue = *new MainQueue;
    return queue;
}

} // namespace quillet::platform
