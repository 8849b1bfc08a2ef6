#include "Support/FailingAllocations.hpp"

#include <curl/curl.h>
#include <malloc.h>
#include <openssl/crypto.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>

namespace quillet::testing {

namespace {

// Counts down to the failing allocation; none fails after it.
std::array<std::atomic<long>, 3> left{};
thread_local bool isSpared = false;

bool fails(Allocator allocator) {
    auto& counter = left[static_cast<std::size_t>(allocator)];
    return !isSpared && counter.load() > 0 && counter.fetch_sub(1) == 1;
}

std::atomic<long> held = 0;
std::atomic<long> mostHeld = 0;

void* hold(void* memory) {
    const long now = held += static_cast<long>(malloc_usable_size(memory));
    for (long most = mostHeld; most < now && !mostHeld.compare_exchange_weak(most, now);) {
    }
    return memory;
}

void release(void* memory) {
    held -= static_cast<long>(malloc_usable_size(memory));
    std::free(memory);
}

template <Allocator allocator>
void* allocate(std::size_t size) {
    return fails(allocator) ? nullptr : std::malloc(size > 0 ? size : 1);
}

template <Allocator allocator>
void* reallocate(void* memory, std::size_t size) {
    return fails(allocator) ? nullptr : std::realloc(memory, size);
}

void* allocateZeroed(std::size_t count, std::size_t size) {
    return fails(Allocator::curl) ? nullptr : std::calloc(count, size);
}

char* copyText(const char* text) {
    return fails(Allocator::curl) ? nullptr : strdup(text);
}

// Both libraries accept such functions only before their first allocation.
const bool isInstalled = [] {
    const auto allocateForOpenSsl = [](std::size_t size, const char*, int) {
        return allocate<Allocator::openSsl>(size);
    };
    const auto reallocateForOpenSsl = [](void* memory, std::size_t size, const char*, int) {
        return reallocate<Allocator::openSsl>(memory, size);
    };
    const auto freeForOpenSsl = [](void* memory, const char*, int) { std::free(memory); };
    const bool isTaken =
        CRYPTO_set_mem_functions(allocateForOpenSsl, reallocateForOpenSsl, freeForOpenSsl) == 1 &&
        curl_global_init_mem(CURL_GLOBAL_DEFAULT, &allocate<Allocator::curl>, &std::free,
                             &reallocate<Allocator::curl>, &copyText, &allocateZeroed) == CURLE_OK;
    if (!isTaken) {
        std::abort();
    }
    return isTaken;
}();

} // namespace

FailingAllocation::FailingAllocation(Allocator allocator, std::size_t index) {
    left[static_cast<std::size_t>(allocator)] = static_cast<long>(index);
}

FailingAllocation::~FailingAllocation() {
    for (auto& counter : left) {
        counter = 0;
    }
}

bool FailingAllocation::hasFailed() const {
    for (const auto& counter : left) {
        if (counter > 0) {
            return false;
        }
    }
    return true;
}

void FailingAllocation::spareThisThread() {
    isSpared = true;
}

PeakMemory::PeakMemory() : start_(held) {
    mostHeld = start_;
}

std::size_t PeakMemory::bytes() const {
    return static_cast<std::size_t>(mostHeld - start_);
}

} // namespace quillet::testing

// The forms of `new` that are not replaced here call these.
void* operator new(std::size_t size) {
    using namespace quillet::testing;
    if (void* const memory = allocate<Allocator::cpp>(size)) {
        return hold(memory);
    }
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    using namespace quillet::testing;
    void* const memory = allocate<Allocator::cpp>(size);
    return memory ? hold(memory) : nullptr;
}

void operator delete(void* memory) noexcept {
    quillet::testing::release(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    quillet::testing::release(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept {
    quillet::testing::release(memory);
}
