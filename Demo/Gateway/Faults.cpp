#include "Gateway/Faults.hpp"

#include "Gateway/ErrorBodies.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace quillet::gateway {

namespace {

constexpr std::array<std::pair<FaultKind, std::string_view>, 6> names{{
    {FaultKind::delay, "delay"},
    {FaultKind::status, "status"},
    {FaultKind::malformed, "malformed"},
    {FaultKind::cut, "cut"},
    {FaultKind::silence, "silence"},
    {FaultKind::close, "close"},
}};

// The bodies of a "malformed" fault by its value; the first is the default.
constexpr std::array<std::pair<std::string_view, std::string_view>, 5> nonsense{{
    {"", R"({"consultant":{"id":41059,"cycle":{"code":202605,)"},
    {"shape", R"({"result":"ok","items":[1,2,3]})"},
    {"null", "null"},
    {"empty", ""},
    {"html", "<!DOCTYPE html><html><body><h1>Welcome to the Wi-Fi</h1></body></html>"},
}};

constexpr int longestDelay = 600'000;

std::optional<int> number(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

} // namespace

std::string_view name(FaultKind kind) {
    return std::ranges::find(names, kind, &std::pair<FaultKind, std::string_view>::first)->second;
}

std::optional<FaultKind> faultKind(std::string_view name) {
    const auto* const found = std::ranges::find(names, name, &std::pair<FaultKind, std::string_view>::second);
    return found == names.end() ? std::nullopt : std::optional(found->first);
}

std::optional<std::string> checkFaultValue(const Fault& fault) {
    const auto value = number(fault.value);
    switch (fault.kind) {
    case FaultKind::delay:
        if (!value || *value < 0 || *value > longestDelay) {
            return "a delay needs value=MILLISECONDS, at most 600000";
        }
        return {};
    case FaultKind::status:
        if (!value || *value < 200 || *value > 599) {
            return "a status needs value=CODE, from 200 to 599";
        }
        return {};
    case FaultKind::malformed:
        if (std::ranges::find(nonsense, fault.value, &std::pair<std::string_view, std::string_view>::first) ==
            nonsense.end()) {
            return "malformed takes value=shape, null, empty or html, or none";
        }
        return {};
    case FaultKind::cut:
    case FaultKind::silence:
    case FaultKind::close:
        if (!fault.value.empty()) {
            return std::string(name(fault.kind)) + " takes no value";
        }
        return {};
    }
    std::unreachable();
}

std::optional<Fault> takeFault(Database& database, std::int64_t consultant, CallKind call) {
    auto row = database.query("UPDATE faults SET remaining = remaining - 1 WHERE consultant = ? AND call = ? "
                              "AND (remaining IS NULL OR remaining > 0) RETURNING kind, value",
                              consultant, name(call));
    if (!row.next()) {
        return std::nullopt;
    }
    const auto kind = faultKind(row.text(0));
    Fault fault{.kind = kind.value_or(FaultKind::status), .value = row.text(1)};
    row.next();
    // The table may have been edited by hand. A fault that cannot be read is reported as the gateway's own
    // failure.
    if (!kind || checkFaultValue(fault)) {
        throw DatabaseError("the table \"faults\" holds a kind or value that is not known");
    }
    return fault;
}

std::optional<Reply> replyInPlace(const Fault& fault, std::string_view target) {
    if (fault.kind == FaultKind::malformed) {
        const auto* const body =
            std::ranges::find(nonsense, fault.value, &std::pair<std::string_view, std::string_view>::first);
        return Reply{.status = 200, .body = std::string(body->second), .headers = {}};
    }
    if (fault.kind != FaultKind::status) {
        return std::nullopt;
    }
    const int status = number(fault.value).value_or(500);
    if (status >= 500) {
        return serverError(status, target, "ERROR_ON_REQUEST", "This failure was asked for.");
    }
    if (status >= 400) {
        return clientError(status, target, "This failure was asked for.");
    }
    Reply reply{.status = status, .body = status == 204 || status == 304 ? "" : "{}", .headers = {}};
    if (status >= 300 && status != 304) {
        reply.headers.emplace_back("Location", "/quillet-bff/elsewhere");
    }
    return reply;
}

std::chrono::milliseconds delayOf(const Fault& fault) {
    return std::chrono::milliseconds(fault.kind == FaultKind::delay ? number(fault.value).value_or(0) : 0);
}

} // namespace quillet::gateway
