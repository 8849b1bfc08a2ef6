#pragma once

#include "Gateway/Database.hpp"
#include "Gateway/Json.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillet::gateway {

/// Opens the gateway's database in the folder `data`. An empty or missing file is seeded; with `reset`, any
/// database of the gateway is seeded afresh. Throws `DatabaseError` if the file is another program's or none
/// at all.
[[nodiscard]] Database openStore(const std::filesystem::path& data, bool reset = false);

struct Consultant {
    std::int64_t id = 0;
    std::string country;
    std::optional<std::int64_t> cycle;
};

/// Ids on the wire are unsigned 64-bit numbers. One above SQLite's signed range cannot exist in the database.
[[nodiscard]] std::optional<Consultant> findConsultant(Database& database, std::uint64_t id);

/// The consultant as bodies carry her; the key "cycle" is left out between two cycles.
[[nodiscard]] Json consultantJson(Database& database, const Consultant& consultant);

/// The seeded orders, as an array for the list of incoming orders that a sample host shows.
[[nodiscard]] Json incomingOrders(Database& database);

} // namespace quillet::gateway
