#pragma once

#include "Fuzzing/Reference/Tree.hpp"
#include "Platform/Json/Decoder.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace quillet::tests {

/// A record of which a body may have any part, so that the rest is passed over.
struct Some {
    std::optional<std::string> text;
    std::optional<std::int64_t> number;
    std::optional<std::vector<std::uint64_t>> counts;
    std::optional<platform::Decimal> amount;

    bool operator==(const Some&) const = default;
};

inline std::vector<std::string> words(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// Decodes the body, also in windows of several sizes, of which the smallest end at each comma, and expects
/// the same of all.
template <typename Record>
std::expected<Record, platform::DecodingError> decodeInWindows(const std::string& body) {
    auto decoded = platform::json::decode<Record>(body);
    for (const std::size_t window : {1, 20, 64, 300}) {
        EXPECT_EQ(platform::json::decode<Record>(body, window), decoded)
            << body << " in windows of " << window;
    }
    return decoded;
}

/// Expects that the body is read, or refused with an error, as another parser makes it by the field tables.
template <typename Record>
void expectAgreement(const std::string& body) {
    ASSERT_STREQ(fuzzing::disagreement(body, decodeInWindows<Record>(body)), nullptr) << body;
}

} // namespace quillet::tests

namespace quillet {
template <>
inline constexpr auto platform::jsonFields<tests::Some> =
    std::tuple{platform::json::Field{"text", &tests::Some::text},
               platform::json::Field{"number", &tests::Some::number},
               platform::json::Field{"counts", &tests::Some::counts},
               platform::json::Field{"amount", &tests::Some::amount}};
} // namespace quillet
