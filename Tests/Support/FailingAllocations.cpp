#include "Support/FailingAllocations.hpp"

#include <curl/curl.h>
#include <dlfcn.h>
#include <malloc.h>
#include <openssl/crypto.h>
#include <pthread.h>
#include <sys/socket.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

namespace quillet::testing {

namespace {

std::atomic<Resource> refused{};
// Counts down to the time that fails; none fails after it.
std::atomic<long> left = 0;
thread_local bool isSpared = false;

bool fails(Resource resource) {
    return !isSpared && resource == refused && left > 0 && left.fetch_sub(1) == 1;
}

/// Calls the function that the program's own replaces.
template <typename Result, typename... Arguments>
Result givenBySystem(Resource resource, Result refusal, const char* function, Arguments... arguments) {
    using Function = Result(Arguments...);
    if (fails(resource)) {
        errno = EMFILE;
        return refusal;
    }
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, function))(arguments...);
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

// OpenSSL adds the file and the line that ask.
template <Resource resource, typename... Place>
void* allocate(std::size_t size, Place...) {
    return fails(resource) ? nullptr : std::malloc(size > 0 ? size : 1);
}

template <Resource resource, typename... Place>
void* reallocate(void* memory, std::size_t size, Place...) {
    return fails(resource) ? nullptr : std::realloc(memory, size);
}

void* allocateZeroed(std::size_t count, std::size_t size) {
    return fails(Resource::curl) ? nullptr : std::calloc(count, size);
}

char* copyText(const char* text) {
    return fails(Resource::curl) ? nullptr : strdup(text);
}

// Both libraries accept such functions only before their first allocation.
const bool isInstalled = [] {
    const auto freeForOpenSsl = [](void* memory, const char*, int) { std::free(memory); };
    const bool isTaken =
        CRYPTO_set_mem_functions(&allocate<Resource::openSsl, const char*, int>,
                                 &reallocate<Resource::openSsl, const char*, int>, freeForOpenSsl) == 1 &&
        curl_global_init_mem(CURL_GLOBAL_DEFAULT, &allocate<Resource::curl>, &std::free,
                             &reallocate<Resource::curl>, &copyText, &allocateZeroed) == CURLE_OK;
    if (!isTaken) {
        std::abort();
    }
    return isTaken;
}();

} // namespace

FailingResource::FailingResource(Resource resource, std::size_t index) {
    refused = resource;
    left = static_cast<long>(index);
}

FailingResource::~FailingResource() {
    left = 0;
}

bool FailingResource::hasFailed() const {
    return left <= 0;
}

void FailingResource::spareThisThread() {
    isSpared = true;
}

PeakMemory::PeakMemory() : start_(held) {
    mostHeld = start_;
}

std::size_t PeakMemory::bytes() const {
    return static_cast<std::size_t>(mostHeld - start_);
}

} // namespace quillet::testing

using namespace quillet::testing;

// The forms of `new` that are not replaced here call these.
void* operator new(std::size_t size) {
    if (void* const memory = allocate<Resource::cpp>(size)) {
        return hold(memory);
    }
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    void* const memory = allocate<Resource::cpp>(size);
    return memory ? hold(memory) : nullptr;
}

void operator delete(void* memory) noexcept {
    release(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    release(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept {
    release(memory);
}

extern "C" {

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*),
                   void* argument) noexcept {
    return givenBySystem(Resource::threads, EAGAIN, "pthread_create", thread, attributes, run, argument);
}

int socket(int domain, int type, int protocol) noexcept {
    return givenBySystem(Resource::sockets, -1, "socket", domain, type, protocol);
}

int socketpair(int domain, int type, int protocol, int* pair) noexcept {
    return givenBySystem(Resource::sockets, -1, "socketpair", domain, type, protocol, pair);
}

// Libraries that take large files on every machine open them with this one.
FILE* fopen64(const char* path, const char* mode) {
    return givenBySystem<FILE*>(Resource::files, nullptr, "fopen64", path, mode);
}

} // extern "C"
