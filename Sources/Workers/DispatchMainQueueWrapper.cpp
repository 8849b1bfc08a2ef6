#include "Workers/DispatchMainQueueWrapper.hpp"

#include "Quillet/Platform/MainQueue.hpp"

#include <utility>

namespace quillet {

void DispatchMainQueueWrapper::async(std::function<void()> block) const {
    platform::mainQueue().async(std::move(block));
}

} // namespace quillet
