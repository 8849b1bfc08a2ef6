#pragma once

#include <concepts>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace quillet::gateway {

/// A statement could not be prepared or run: a full disk, a lock held too long, a file that is not a
/// database. It is an exception so that unwinding rolls back an open transaction. `main` and the router catch
/// it.
class DatabaseError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One prepared statement. Columns are counted from 0.
class Statement {
public:
    Statement(sqlite3* database, std::string_view sql);

    /// Moves to the next row; false when there is none.
    bool next();

    [[nodiscard]] bool isNull(int column) const;
    [[nodiscard]] std::int64_t integer(int column) const;
    [[nodiscard]] std::string text(int column) const;

    void bind(int index, std::int64_t value);
    void bind(int index, std::string_view value);
    template <std::integral Value>
    void bind(int index, Value value) {
        bind(index, static_cast<std::int64_t>(value));
    }
    template <class Value>
    void bind(int index, const std::optional<Value>& value) {
        if (value) {
            bind(index, *value);
        }
    }

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };
    std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};

/// One connection to the database file, for one thread at a time. Other connections may be open to the same
/// file, also in other processes; it waits up to a second and a half for a lock.
class Database {
public:
    /// Opens the file, making it if there is none. Throws `DatabaseError`.
    explicit Database(const std::filesystem::path& file);

    /// Runs several statements that return no rows.
    void script(const std::string& sql);

    /// Prepares `sql` and binds `values` to its question marks in order.
    template <class... Values>
    [[nodiscard]] Statement query(std::string_view sql, const Values&... values) {
        Statement statement(database_.get(), sql);
        // Without values it is never read.
        [[maybe_unused]] int index = 0;
        (statement.bind(++index, values), ...);
        return statement;
    }

    /// Runs a statement that returns no rows; returns how many rows it changed.
    template <class... Values>
    int execute(std::string_view sql, const Values&... values) {
        query(sql, values...).next();
        return changes();
    }

private:
    [[nodiscard]] int changes() const;

    struct Closer {
        void operator()(sqlite3* database) const;
    };
    std::unique_ptr<sqlite3, Closer> database_;
};

/// Holds the file's write lock from construction until `commit`. Its destructor rolls back if `commit` was
/// not called.
class Transaction {
public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void commit();

private:
    Database& database_;
    bool open_ = true;
};

} // namespace quillet::gateway
