#pragma once

#include "Quillet/Orders.hpp"

#include <memory>
#include <optional>
#include <string>

namespace quillet::benchmarks {

/// What one would write over simdjson's On-Demand interface to get the same records with the same guarantees:
/// whole numbers exact, decimals exact, dates checked, required keys there, whatever is skipped validated
/// too. It keeps its parser, and wants bodies with simdjson's padding behind them, both of which our own
/// decoder does without.
class OnDemandDecoder {
public:
    enum class Decimals {
        /// Read by Boost.Multiprecision, the fastest library at hand with 38 decimal digits.
        library,
        /// Read by the module's own Decimal: what is left is the cost of the JSON alone.
        own
    };

    explicit OnDemandDecoder(Decimals decimals);
    ~OnDemandDecoder();
    OnDemandDecoder(const OnDemandDecoder&) = delete;
    OnDemandDecoder& operator=(const OnDemandDecoder&) = delete;

    /// Nothing if the body is not a list of open carts. Decimals of the library stay in a list of the
    /// decoder's: the records have no room for them.
    [[nodiscard]] std::optional<OpenOrdersResponse> decode(const std::string& paddedBody);

    /// A copy with the bytes that simdjson wants to be able to read behind the end.
    [[nodiscard]] static std::string padded(std::string_view body);

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace quillet::benchmarks
