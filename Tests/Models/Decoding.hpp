#pragma once

#include "Fuzzing/Reference/Everything.hpp"
#include "Fuzzing/Reference/Tree.hpp"

#include <gtest/gtest.h>

#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace quillet::tests {

using fuzzing::Everything;

inline std::vector<std::string> words(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// Decodes the body, and expects what another parser makes of it by the field tables, value or error.
template <typename Record>
std::expected<Record, platform::DecodingError> decoded(const std::string& body) {
    EXPECT_STREQ(fuzzing::disagreement<Record>(body), nullptr) << body;
    return platform::json::decode<Record>(body);
}

} // namespace quillet::tests
