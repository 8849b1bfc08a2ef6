#pragma once

namespace quillet::gateway {

/// The text of Schema.sql: drops the gateway's tables if they exist and creates empty ones.
extern const char* const schemaSql;

/// The text of Seeds.sql: fills the empty tables.
extern const char* const seedsSql;

} // namespace quillet::gateway
