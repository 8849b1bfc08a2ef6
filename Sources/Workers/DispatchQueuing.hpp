#pragma once

#include <functional>

namespace quillet {

/// Takes work for a queue.
class DispatchQueuing {
public:
    virtual ~DispatchQueuing() = default;

    /// Queues the block and returns at once; it runs later, once, after all blocks queued before it, and is
    /// freed after it ran. May be called on any thread. Throws std::bad_alloc where there is no memory; the
    /// block is not queued then.
    virtual void async(std::function<void()> block) const = 0;
};

} // namespace quillet
