#pragma once

#include "Models/Date.hpp"
#include "Platform/Json/Field.hpp"

#include <cstdint>
#include <string>

namespace quillet {

/// A sales cycle with its period.
struct Cycle {
    /// The cycle's code; the screens show only its last two digits.
    std::uint64_t code = 0;
    /// The first moment of the cycle.
    Date startDate;
    /// The last moment of the cycle.
    Date endDate;

    /// The last two decimal digits of the cycle's code: 202405 gives "05". A code of fewer than two digits
    /// goes to the fatal-error hook; if a replaced hook returns, the one digit there is.
    [[nodiscard]] static std::string onlyCode(const Cycle& cycle);

    bool operator==(const Cycle&) const = default;
};

template <>
inline constexpr auto platform::jsonFields<Cycle> = std::tuple{
    platform::json::Field{"code", &Cycle::code},
    platform::json::Field{"startDate", &Cycle::startDate},
    platform::json::Field{"endDate", &Cycle::endDate},
};

} // namespace quillet
