#pragma once

#include <cstdint>
#include <string>

namespace quillet {

/// Whose open carts are asked for.
struct SellOutCartsStatusOpenServiceParameters {
    std::string country;
    std::uint64_t consultantId = 0;

    bool operator==(const SellOutCartsStatusOpenServiceParameters&) const = default;
};

} // namespace quillet
