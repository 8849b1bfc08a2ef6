#include "Platform/Http/SystemSessionClock.hpp"

namespace quillet::platform {

std::chrono::steady_clock::time_point SystemSessionClock::now() const {
    return std::chrono::steady_clock::now();
}

void SystemSessionClock::addListener(std::weak_ptr<SessionClockListening>) {}

} // namespace quillet::platform
