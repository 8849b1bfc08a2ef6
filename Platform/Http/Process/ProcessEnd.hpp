#pragma once

#include <shared_mutex>

namespace quillet::platform {

/// Stops detached session threads from calling OpenSSL once exit handlers have begun tearing it down. That
/// happens when main returns if the host was the first to use OpenSSL.
class ProcessEnd {
public:
    using Lock = std::shared_lock<std::shared_timed_mutex>;

    /// Registers the exit handler. Call it once, after the libraries were initialised and before the first
    /// lock. At exit it waits up to one second for the locks that are held.
    static void watch();

    /// A held lock. A thread that asks for one during exit blocks until the process has ended.
    [[nodiscard]] static Lock lock();
};

} // namespace quillet::platform
