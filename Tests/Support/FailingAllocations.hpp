#pragma once

#include <cstddef>

namespace quillet::testing {

/// The allocators: operator new, libcurl's and OpenSSL's.
enum class Allocator { cpp, curl, openSsl };

/// Makes one allocation of the process fail while it exists. Linking it into a program replaces the program's
/// allocation functions and those of the two libraries.
class FailingAllocation {
public:
    /// Fails the `index`th allocation of `allocator`, counted from 1 over all threads that are not exempt.
    FailingAllocation(Allocator allocator, std::size_t index);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;

    /// Whether that allocation was reached.
    [[nodiscard]] bool hasFailed() const;

    /// Exempts the calling thread: its allocations neither fail nor count.
    static void spareThisThread();
};

/// Measures the peak of the bytes allocated by C++ above their number at construction, as
/// malloc_usable_size() counts them. Only one may exist at a time.
class PeakMemory {
public:
    PeakMemory();
    [[nodiscard]] std::size_t bytes() const;

private:
    long start_;
};

} // namespace quillet::testing
