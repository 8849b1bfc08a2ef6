#pragma once

#include <cstddef>

namespace quillet::testing {

/// Who asks for memory: what C++ allocates with `new`, libcurl, OpenSSL.
enum class Allocator { cpp, curl, openSsl };

/// Makes one allocation of the process fail while it lives. Linked into a program, this replaces the
/// program's allocation functions and those of the two libraries.
class FailingAllocation {
public:
    /// The `index`th one that `allocator` makes on a thread that is not spared, counted from 1.
    FailingAllocation(Allocator allocator, std::size_t index);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;

    /// Whether there were that many.
    [[nodiscard]] bool hasFailed() const;

    /// From now on no allocation of the calling thread fails, nor is it counted.
    static void spareThisThread();
};

/// Measures what C++ has allocated at most since this was made, over what it had then, in bytes as the system
/// sets them aside. One at a time.
class PeakMemory {
public:
    PeakMemory();
    [[nodiscard]] std::size_t bytes() const;

private:
    long start_;
};

} // namespace quillet::testing
