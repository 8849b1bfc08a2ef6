#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>

namespace quillet::gateway {

/// Members go out in the order in which they were put in, so that a person can read a body.
using Json = nlohmann::ordered_json;

/// An amount of money for a body, from whole hundredths. The library writes the shortest text that reads back
/// as the same double; for every amount of up to 4,000,000.00 that has been checked to be the decimal itself.
inline Json money(std::int64_t hundredths) {
    if (hundredths % 100 == 0) {
        return hundredths / 100;
    }
    return static_cast<double>(hundredths) / 100.0;
}

} // namespace quillet::gateway
