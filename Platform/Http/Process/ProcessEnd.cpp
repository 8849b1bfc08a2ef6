#include "Platform/Http/Process/ProcessEnd.hpp"

#include <chrono>
#include <cstdlib>

namespace quillet::platform {

namespace {

// Never torn down: it is there for those who come late.
std::shared_timed_mutex& gate() {
    static auto& mutex = *new std::shared_timed_mutex;
    return mutex;
}

} // namespace

void ProcessEnd::watch() {
    // Made now: at the process's end there may be no memory for it.
    gate();
    // What is registered later is called earlier.
    std::atexit([] { static_cast<void>(gate().try_lock_for(std::chrono::seconds(1))); });
}

ProcessEnd::Lock ProcessEnd::lock() {
    return Lock(gate());
}

} // namespace quillet::platform
