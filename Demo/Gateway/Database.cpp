#include "Gateway/Database.hpp"

#include <sqlite3.h>

namespace quillet::gateway {

namespace {

constexpr int lockWaitMilliseconds = 1500;

void check(int code, sqlite3* database) {
    if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE) {
        throw DatabaseError(database ? sqlite3_errmsg(database) : sqlite3_errstr(code));
    }
}

} // namespace

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}
void Database::Closer::operator()(sqlite3* database) const {
    sqlite3_close(database);
}

Statement::Statement(sqlite3* database, std::string_view sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &statement, nullptr),
          database);
    statement_.reset(statement);
}

bool Statement::next() {
    const int code = sqlite3_step(statement_.get());
    check(code, sqlite3_db_handle(statement_.get()));
    return code == SQLITE_ROW;
}

bool Statement::isNull(int column) const {
    return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

std::int64_t Statement::integer(int column) const {
    return sqlite3_column_int64(statement_.get(), column);
}

std::string Statement::text(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
    return text ? std::string(text, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column)))
                : "";
}

void Statement::bind(int index, std::int64_t value) {
    check(sqlite3_bind_int64(statement_.get(), index, value), sqlite3_db_handle(statement_.get()));
}

void Statement::bind(int index, std::string_view value) {
    check(sqlite3_bind_text(statement_.get(), index, value.data(), static_cast<int>(value.size()),
                            SQLITE_TRANSIENT),
          sqlite3_db_handle(statement_.get()));
}

Database::Database(const std::filesystem::path& file) {
    sqlite3* database = nullptr;
    const int code = sqlite3_open(file.c_str(), &database);
    database_.reset(database);
    check(code, database);
    sqlite3_busy_timeout(database, lockWaitMilliseconds);
}

void Database::script(const std::string& sql) {
    check(sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr), database_.get());
}

int Database::changes() const {
    return sqlite3_changes(database_.get());
}

Transaction::Transaction(Database& database) : database_(database) {
    database_.script("BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
    if (!open_) {
        return;
    }
    try {
        database_.script("ROLLBACK");
    } catch (const DatabaseError&) {
        // SQLite has already rolled back by itself, as it does after some failures.
    }
}

void Transaction::commit() {
    database_.script("COMMIT");
    open_ = false;
}

} // namespace quillet::gateway
