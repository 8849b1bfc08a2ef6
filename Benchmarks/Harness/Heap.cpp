#include "Harness/Heap.hpp"

#include <malloc.h>

#include <cstdlib>
#include <fstream>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>

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

namespace {

std::size_t statusBytes(std::string_view name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name)) {
            return std::stoul(line.substr(name.size() + 1)) * 1024;
        }
    }
    throw std::runtime_error("The system does not tell the process's memory.");
}

} // namespace

std::uint64_t allocationCount() {
    return allocations;
}

std::size_t liveBytes() {
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

void keepHeap() {
    constexpr int trimThreshold = 1 << 30;
    // No larger one is taken.
    constexpr int mapThreshold = 32 << 20;
    if (mallopt(M_TRIM_THRESHOLD, trimThreshold) != 1 || mallopt(M_MMAP_THRESHOLD, mapThreshold) != 1) {
        throw std::runtime_error("The allocator does not keep freed memory.");
    }
}

void settleHeap() {
    std::free(std::malloc(std::size_t{1} << 20));
}

std::size_t residentBytes() {
    return statusBytes("VmRSS");
}

void resetPeakResidentBytes() {
    if (!(std::ofstream("/proc/self/clear_refs") << 5 << std::flush)) {
        throw std::runtime_error("The system does not let the process's peak of memory be reset.");
    }
}

std::size_t peakResidentBytes() {
    return statusBytes("VmHWM");
}

} // namespace quillet::benchmarks
