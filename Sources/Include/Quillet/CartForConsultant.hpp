#pragma once

#include <cstdint>
#include <string>

namespace quillet {

/// The sell-out cart that the host opens the module with. Built by the host; never read from or written to
/// JSON.
struct CartForConsultant {
    /// The cart's identifier, as received from the customer's order.
    std::string uuid;
    /// The consultant's code.
    std::uint64_t consultantId = 0;
    /// The consultant's country code, passed on to the services.
    std::string country;

    bool operator==(const CartForConsultant&) const = default;
};

} // namespace quillet
