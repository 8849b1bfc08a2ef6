#include "Workers/DispatchMainQueueWrapper.hpp"

#include "Workers/MainQueue.hpp"

#include <utility>

namespace quillet {

void DispatchMainQueueWrapper::async(std::function<void()> block) const {
    mainQueue().async(std::move(block));
}

} // namespace quillet
