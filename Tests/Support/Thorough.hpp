#pragma once

#include <cstddef>
#include <cstdlib>

namespace quillet::testing {

/// How many cases a test of many takes: `whole` where QUILLET_THOROUGH is set, as `./test --faults` does,
/// else `quick`, so that all tests together stay short.
[[nodiscard]] inline std::size_t thorough(std::size_t quick, std::size_t whole) {
    return std::getenv("QUILLET_THOROUGH") ? whole : quick;
}

} // namespace quillet::testing
