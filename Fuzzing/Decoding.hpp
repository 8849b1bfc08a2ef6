#pragma once

#include "Fuzzing/Target.hpp"
#include "Platform/Json/Decoder.hpp"

#include <cstddef>
#include <string>

namespace quillet::fuzzing {

/// Decodes a body as a `Record`, also in windows so small that they end at each comma: the result is the
/// same.
template <typename Record>
std::expected<Record, platform::DecodingError> decodeInWindows(const std::string& body) {
    auto decoded = platform::json::decode<Record>(body);
    const std::size_t window = body.size() % 2 == 0 ? 1 : 100;
    require(platform::json::decode<Record>(body, window) == decoded,
            "a body is decoded alike in windows of every size");
    return decoded;
}

} // namespace quillet::fuzzing
