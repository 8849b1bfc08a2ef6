#include "Gateway/Store.hpp"

#include "Gateway/Sql.hpp"

#include <limits>

namespace quillet::gateway {

namespace {

// "Qgw1" in the file's header marks our database; the version is raised with each change of Schema.sql.
constexpr std::int64_t applicationId = 0x51677731;
constexpr std::int64_t schemaVersion = 1;

std::int64_t single(Database& database, std::string_view sql) {
    auto row = database.query(sql);
    return row.next() ? row.integer(0) : 0;
}

bool isReady(Database& database) {
    return single(database, "PRAGMA application_id") == applicationId &&
           single(database, "PRAGMA user_version") == schemaVersion;
}

void seed(Database& database, bool reset) {
    Transaction transaction(database);
    // Another process may have seeded the file while this one waited for the lock.
    if (isReady(database) && !reset) {
        return;
    }
    const bool ours = single(database, "PRAGMA application_id") == applicationId;
    if (!ours && single(database, "SELECT count(*) FROM sqlite_master") > 0) {
        throw DatabaseError("it belongs to another program");
    }
    if (ours && !reset) {
        throw DatabaseError("it was made by another version of the gateway; start once with --reset");
    }
    database.script(schemaSql);
    database.script(seedsSql);
    database.script("PRAGMA application_id = " + std::to_string(applicationId) +
                    "; PRAGMA user_version = " + std::to_string(schemaVersion));
    transaction.commit();
}

} // namespace

Database openStore(const std::filesystem::path& data, bool reset) {
    const auto file = data / "gateway.sqlite";
    try {
        Database database(file);
        if (!isReady(database) || reset) {
            seed(database, reset);
        }
        return database;
    } catch (const DatabaseError& error) {
        throw DatabaseError("cannot use the database " + file.string() + ": " + error.what());
    }
}

std::optional<Consultant> findConsultant(Database& database, std::uint64_t id) {
    if (id > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
        return std::nullopt;
    }
    auto row = database.query("SELECT country, cycle FROM consultants WHERE id = ?", id);
    if (!row.next()) {
        return std::nullopt;
    }
    Consultant consultant{.id = static_cast<std::int64_t>(id), .country = row.text(0), .cycle = {}};
    if (!row.isNull(1)) {
        consultant.cycle = row.integer(1);
    }
    return consultant;
}

Json consultantJson(Database& database, const Consultant& consultant) {
    Json json{{"id", consultant.id}};
    if (!consultant.cycle) {
        return json;
    }
    auto row = database.query("SELECT starts, ends FROM cycles WHERE code = ?", *consultant.cycle);
    if (row.next()) {
        json["cycle"] = {{"code", *consultant.cycle}, {"startDate", row.text(0)}, {"endDate", row.text(1)}};
    }
    return json;
}

Json incomingOrders(Database& database) {
    auto rows = database.query("SELECT title, customer, message, cart, incoming.consultant, country, created "
                               "FROM incoming JOIN consultants ON consultants.id = incoming.consultant "
                               "JOIN carts ON carts.uuid = cart ORDER BY incoming.consultant");
    Json list = Json::array();
    while (rows.next()) {
        list.push_back({{"title", rows.text(0)},
                        {"customer", rows.text(1)},
                        {"message", rows.text(2)},
                        {"cart", rows.text(3)},
                        {"consultant", rows.integer(4)},
                        {"country", rows.text(5)},
                        {"sentAt", rows.text(6)}});
    }
    return list;
}

} // namespace quillet::gateway
