#pragma once

#include <cstddef>

namespace quillet::testing {

/// What can run short: what operator new, libcurl's and OpenSSL's allocators give, threads, sockets and the
/// like, and files.
enum class Resource { cpp, curl, openSsl, threads, sockets, files };

/// Refuses a resource once while it exists, of which there may be one at a time. Linking it into a program
/// replaces the program's allocation functions, those of the two libraries, and the system's functions that
/// give the other resources.
class FailingResource {
public:
    /// Refuses at the `index`th time, counted from 1 over all threads that are not exempt.
    FailingResource(Resource resource, std::size_t index);
    ~FailingResource();
    FailingResource(const FailingResource&) = delete;
    FailingResource& operator=(const FailingResource&) = delete;

    /// Whether that time was reached.
    [[nodiscard]] bool hasFailed() const;

    /// Exempts the calling thread: it is refused nothing and not counted.
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
