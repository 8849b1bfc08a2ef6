#include "Platform/Http/Process/ProcessEnd.hpp"

#include <chrono>
#include <cstdlib>

namespace quillet::platform {

namespace {

// Never destroyed, because detached threads may use it during exit.
std::shared_timed_mutex& gate() {
    static auto& mutex = *new std::shared_timed_mutex;
    return mutex;
}

} // namespace

void ProcessEnd::watch() {
    // Allocated now, because an allocation during exit may fail.
    gate();
    // Exit handlers run in reverse order of registration.
    std::atexit([] { static_cast<void>(gate().try_lock_for(std::chrono::seconds(1))); });
}

ProcessEnd::Lock ProcessEnd::lock() {
    return Lock(gate());
}

} // namespace quillet::platform
