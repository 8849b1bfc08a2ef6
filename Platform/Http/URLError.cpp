#include "Quillet/Platform/URLError.hpp"

#include <new>

namespace quillet::platform {

URLError URLError::of(Code code, std::string_view message) noexcept {
    URLError error{code, {}};
    try {
        error.message = message;
    } catch (const std::bad_alloc&) {
    }
    return error;
}

URLError URLError::outOfMemory() noexcept {
    return of(Code::unknown, "Out of memory");
}

} // namespace quillet::platform
