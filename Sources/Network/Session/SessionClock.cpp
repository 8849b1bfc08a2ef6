#include "Network/Session/SessionClock.hpp"

namespace quillet {

std::chrono::steady_clock::time_point SystemSessionClock::now() const {
    return std::chrono::steady_clock::now();
}

void SystemSessionClock::addListener(std::weak_ptr<SessionClockListening>) {}

} // namespace quillet
