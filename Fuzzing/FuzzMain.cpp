#include "Fuzzing/Target.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// What libFuzzer calls: the target after which the program is named.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto* const target =
        *std::ranges::find(quillet::fuzzing::Target::all(), std::string_view(QUILLET_FUZZ_TARGET),
                           &quillet::fuzzing::Target::name);
    target->run(std::string(reinterpret_cast<const char*>(data), size));
    return 0;
}
