#include "Harness/AllocationCount.hpp"

#include <cstdlib>
#include <new>

namespace {

thread_local std::uint64_t allocations = 0;

} // namespace

// The standard library's array and non-throwing forms call this one.
void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace quillet::benchmarks {

std::uint64_t allocationCount() {
    return allocations;
}

} // namespace quillet::benchmarks
