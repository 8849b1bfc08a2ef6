#include "Workers/MainQueue.hpp"

#include <utility>

namespace quillet {

void MainQueue::async(std::function<void()> block) {
    {
        const std::lock_guard lock(blocksMutex_);
        blocks_.push_back(std::move(block));
    }
    const std::lock_guard lock(wakeUpMutex_);
    if (wakeUp_) {
        wakeUp_();
    }
}

std::size_t MainQueue::drain() {
    std::unique_lock lock(blocksMutex_);
    const std::size_t waiting = blocks_.size();
    std::size_t ran = 0;
    // Blocks are taken one by one, so that a drain from within a block goes on with the next one in order.
    for (; ran < waiting && !blocks_.empty(); ++ran) {
        auto block = std::move(blocks_.front());
        blocks_.pop_front();
        lock.unlock();
        block();
        block = nullptr;
        lock.lock();
    }
    return ran;
}

void MainQueue::setWakeUp(std::function<void()> wakeUp) {
    const std::lock_guard wakeUpLock(wakeUpMutex_);
    wakeUp_ = std::move(wakeUp);
    const std::lock_guard blocksLock(blocksMutex_);
    if (wakeUp_ && !blocks_.empty()) {
        wakeUp_();
    }
}

MainQueue& mainQueue() {
    static auto& queue = *new MainQueue;
    return queue;
}

} // namespace quillet
