#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>

namespace quillet::gateway {

/// Members keep their insertion order, which makes a body easier to read.
using Json = nlohmann::ordered_json;

/// An amount of money for a body, from whole hundredths. The library writes the shortest text that reads back
/// as the same double. For every amount up to 4,000,000.00 this was checked to be the exact decimal.
inline Json money(std::int64_t hundredths) {
    if (hundredths % 100 == 0) {
        return hundredths / 100;
    }
    return static_cast<double>(hundredths) / 100.0;
}

} // namespace quillet::gateway
