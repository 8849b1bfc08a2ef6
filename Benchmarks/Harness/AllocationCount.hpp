#pragma once

#include <cstdint>

namespace quillet::benchmarks {

/// Allocations that the calling thread has made through operator new so far.
[[nodiscard]] std::uint64_t allocationCount();

} // namespace quillet::benchmarks
