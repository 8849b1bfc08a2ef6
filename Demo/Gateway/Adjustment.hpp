#pragma once

#include "Gateway/Database.hpp"

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace quillet::gateway {

/// "consultant=N call=C kind=K [value=V] [times=N]"; without a kind, the fault is taken away.
struct FaultChange {
    std::int64_t consultant = 0;
    std::string call;
    std::optional<std::string> kind;
    std::string value;
    std::optional<std::int64_t> times;
};

/// "CODE=N".
struct StockChange {
    std::int64_t product = 0;
    std::int64_t units = 0;
};

/// "CODE=N" for everybody, "CODE@CONSULTANT=N" for one consultant; without units, the limit is taken away.
struct QuotaChange {
    std::int64_t product = 0;
    std::int64_t consultant = 0;
    std::optional<std::int64_t> units;
};

using Adjustment = std::variant<FaultChange, StockChange, QuotaChange>;

/// The three read a value of the command line; an error is returned as one line for a person.
[[nodiscard]] std::expected<Adjustment, std::string> parseFault(std::string_view text);
[[nodiscard]] std::expected<Adjustment, std::string> parseStock(std::string_view text);
[[nodiscard]] std::expected<Adjustment, std::string> parseQuota(std::string_view text);

/// Makes the change in the database; an unknown consultant or product is returned as one line for a person.
[[nodiscard]] std::expected<void, std::string> apply(Database& database, const Adjustment& adjustment);

} // namespace quillet::gateway
