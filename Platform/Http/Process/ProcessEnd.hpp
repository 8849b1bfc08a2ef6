#pragma once

#include <shared_mutex>

namespace quillet::platform {

/// Keeps threads that nobody waits for out of the libraries that the end of the process takes down. OpenSSL,
/// say, goes down when main returns, if the host was the first to use it.
class ProcessEnd {
public:
    using Lock = std::shared_lock<std::shared_timed_mutex>;

    /// To be called after the libraries were made ready and before the first lock; once. When the process
    /// ends, this waits for the locks that are held, a second at the most, before those libraries are taken
    /// down.
    static void watch();

    /// A lock, held. Whoever asks for one while the process ends waits until it is gone.
    [[nodiscard]] static Lock lock();
};

} // namespace quillet::platform
