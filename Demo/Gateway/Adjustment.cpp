#include "Gateway/Adjustment.hpp"

#include "Gateway/Faults.hpp"

#include <charconv>
#include <map>
#include <sstream>

namespace quillet::gateway {

namespace {

using Failure = std::unexpected<std::string>;

std::optional<std::int64_t> number(std::string_view text) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc{} || end != text.data() + text.size() || value < 0) {
        return std::nullopt;
    }
    return value;
}

Failure notUnderstood(std::string_view option, std::string_view text) {
    return Failure(std::string(option) + " does not understand \"" + std::string(text) + "\"");
}

bool exists(Database& database, std::string_view sql, std::int64_t key) {
    return database.query(sql, key).next();
}

std::expected<void, std::string> noSuchConsultant(std::int64_t id) {
    return Failure("there is no consultant " + std::to_string(id));
}
std::expected<void, std::string> noSuchProduct(std::int64_t code) {
    return Failure("there is no product " + std::to_string(code));
}

bool hasConsultant(Database& database, std::int64_t id) {
    return exists(database, "SELECT 1 FROM consultants WHERE id = ?", id);
}

struct Applier {
    Database& database;

    std::expected<void, std::string> operator()(const FaultChange& change) const {
        if (!hasConsultant(database, change.consultant)) {
            return noSuchConsultant(change.consultant);
        }
        if (change.kind) {
            database.execute("INSERT OR REPLACE INTO faults (consultant, call, kind, value, remaining) "
                             "VALUES (?, ?, ?, ?, ?)",
                             change.consultant, change.call, *change.kind, change.value, change.times);
        } else {
            database.execute("DELETE FROM faults WHERE consultant = ? AND call = ?", change.consultant,
                             change.call);
        }
        return {};
    }

    std::expected<void, std::string> operator()(const StockChange& change) const {
        if (database.execute("UPDATE catalogue SET stock = ? WHERE code = ?", change.units, change.product) ==
            0) {
            return noSuchProduct(change.product);
        }
        return {};
    }

    std::expected<void, std::string> operator()(const QuotaChange& change) const {
        if (!exists(database, "SELECT 1 FROM catalogue WHERE code = ?", change.product)) {
            return noSuchProduct(change.product);
        }
        if (change.consultant != 0 && !hasConsultant(database, change.consultant)) {
            return noSuchConsultant(change.consultant);
        }
        if (change.units) {
            database.execute("INSERT OR REPLACE INTO quotas (product, consultant, units) VALUES (?, ?, ?)",
                             change.product, change.consultant, *change.units);
        } else {
            database.execute("DELETE FROM quotas WHERE product = ? AND consultant = ?", change.product,
                             change.consultant);
        }
        return {};
    }
};

} // namespace

std::expected<Adjustment, std::string> parseFault(std::string_view text) {
    std::map<std::string, std::string> words;
    std::istringstream stream{std::string(text)};
    for (std::string word; stream >> word;) {
        const auto equals = word.find('=');
        if (equals == std::string::npos ||
            !words.emplace(word.substr(0, equals), word.substr(equals + 1)).second) {
            return notUnderstood("--fault", word);
        }
    }
    const auto take = [&](const char* key) {
        const auto node = words.extract(key);
        return node ? std::optional(node.mapped()) : std::nullopt;
    };
    const auto consultant = number(take("consultant").value_or(""));
    const auto call = take("call").value_or("");
    const auto kind = take("kind").value_or("");
    const auto times = take("times");
    FaultChange change{.consultant = consultant.value_or(0),
                       .call = call,
                       .kind = kind == "none" ? std::nullopt : std::optional(kind),
                       .value = take("value").value_or(""),
                       .times = times ? number(*times) : std::nullopt};
    if (!words.empty()) {
        return notUnderstood("--fault", words.begin()->first);
    }
    if (!consultant || !callKind(call)) {
        return Failure("--fault needs consultant=N and call=associate, open or checkout");
    }
    if (times && change.times.value_or(0) < 1) {
        return Failure("--fault needs times=N of 1 or more");
    }
    if (!change.kind) {
        return change;
    }
    const auto known = faultKind(kind);
    if (!known) {
        return Failure("--fault needs kind=delay, status, malformed, cut, silence, close or none");
    }
    if (const auto wrong = checkFaultValue({.kind = *known, .value = change.value})) {
        return Failure("--fault: " + *wrong);
    }
    return change;
}

std::expected<Adjustment, std::string> parseStock(std::string_view text) {
    const auto equals = text.find('=');
    const auto product = number(text.substr(0, equals));
    const auto units = equals == std::string_view::npos ? std::nullopt : number(text.substr(equals + 1));
    if (!product || !units) {
        return notUnderstood("--stock", text);
    }
    return StockChange{.product = *product, .units = *units};
}

std::expected<Adjustment, std::string> parseQuota(std::string_view text) {
    const auto equals = text.find('=');
    if (equals == std::string_view::npos) {
        return notUnderstood("--quota", text);
    }
    const auto left = text.substr(0, equals);
    const auto right = text.substr(equals + 1);
    const auto at = left.find('@');
    const auto product = number(left.substr(0, at));
    const auto consultant =
        at == std::string_view::npos ? std::optional<std::int64_t>(0) : number(left.substr(at + 1));
    const auto units = number(right);
    if (!product || !consultant || (!units && right != "none")) {
        return notUnderstood("--quota", text);
    }
    return QuotaChange{.product = *product, .consultant = *consultant, .units = units};
}

std::expected<void, std::string> apply(Database& database, const Adjustment& adjustment) {
    return std::visit(Applier{database}, adjustment);
}

} // namespace quillet::gateway
