#pragma once

#include "Platform/Json/NumberToken.hpp"
#include "Quillet/Platform/Decimal.hpp"

#include <cstdint>
#include <optional>

namespace quillet::platform::json {

/// The exact value, however it is written (1.0, 1e2, 100e-2, -0); nothing if it is not whole or out of range.
[[nodiscard]] std::optional<std::uint64_t> toUnsigned(const NumberToken& number);
[[nodiscard]] std::optional<std::int64_t> toSigned(const NumberToken& number);

/// The value with digits beyond the 38th significant one rounded; nothing if its power of ten is out of
/// range.
[[nodiscard]] std::optional<Decimal> toDecimal(const NumberToken& number);

} // namespace quillet::platform::json
