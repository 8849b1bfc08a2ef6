#pragma once

#include "Quillet/Export.hpp"

#include <cstddef>
#include <functional>
#include <list>
#include <mutex>

namespace quillet::platform {

/// A serial queue that the user interface drains on its own thread.
class QUILLET_BACKEND_API MainQueue {
public:
    /// Queues a block. May be called on any thread, also from within a block. Throws what the allocation or
    /// the wake-up throws; the block is not queued then.
    void async(std::function<void()> block);

    /// Runs the blocks that are queued at this moment, in order, and returns how many ran. Blocks that are
    /// queued meanwhile wait for the next drain, so that the user interface gets its turn between them.
    /// Called on the user interface's thread only; a block may call it again, as a nested event loop does.
    std::size_t drain();

    /// Sets a hook that tells an event loop to drain the queue. It is called within each `async`, on the
    /// thread of that call, and once now if blocks are waiting. It should only post to the event loop and
    /// must not use this queue. When this returns, the previous hook is not running and will not be called
    /// again. An empty function removes the hook.
    void setWakeUp(std::function<void()> wakeUp);

private:
    using Blocks = std::list<std::function<void()>>;

    std::mutex mutex_;
    Blocks blocks_;
    std::function<void()> wakeUp_;
};

/// The main queue of the process. It is never destroyed, because a reply may arrive even during exit.
[[nodiscard]] QUILLET_BACKEND_API MainQueue& mainQueue();

} // namespace quillet::platform
