#pragma once

#include <cstddef>
#include <cstdint>

namespace quillet::benchmarks {

/// Allocations that the calling thread has made through operator new so far.
[[nodiscard]] std::uint64_t allocationCount();

/// Bytes in use in the malloc heap. Qt's containers bypass operator new, so counting that is not enough.
/// JavaScript's heap is not included.
[[nodiscard]] std::size_t liveBytes();

/// Keeps freed memory in the process from now on. Otherwise much of a decoding's time would be the kernel's
/// clearing of new pages, which only those who keep their memory avoid.
void keepHeap();

/// Has the allocator do now what it put off when something was freed, so that it is not measured as part of
/// what comes next.
void settleHeap();

/// Memory of the process that is in RAM now, in bytes.
[[nodiscard]] std::size_t residentBytes();

/// Forgets the peak so far; `peakResidentBytes` is then the most since.
void resetPeakResidentBytes();
[[nodiscard]] std::size_t peakResidentBytes();

} // namespace quillet::benchmarks
