#include "Gateway/RequestCheck.hpp"

#include "Gateway/ErrorBodies.hpp"
#include "Gateway/Json.hpp"
#include "Gateway/Token.hpp"

#include <algorithm>
#include <charconv>
#include <optional>

namespace quillet::gateway {

namespace {

constexpr std::string_view mediaType = "application/json";

struct Wrong {
    int status;
    std::string details;
};
using Verdict = std::optional<Wrong>;

struct Rule {
    CallKind kind;
    std::string_view method;
    std::optional<std::string_view> query;
    bool needsProvider;
    bool hasBody;
};

constexpr std::array<Rule, 3> rules{{
    {CallKind::associate, "PATCH", std::nullopt, true, true},
    {CallKind::open, "GET", "status=OPEN", false, false},
    {CallKind::checkout, "POST", std::nullopt, true, false},
}};

// Headers that an HTTP library adds by itself. Any other header that the module does not set is an error.
constexpr std::array<std::string_view, 7> transportHeaders{
    "Host",       "User-Agent",     "Accept-Encoding",  "Accept-Language",
    "Connection", "Content-Length", "Transfer-Encoding"};
constexpr std::array<std::string_view, 4> ownHeaders{"Content-Type", "Accept", "Consultant-Token",
                                                     "Authorization-Provider"};

Verdict checkHost(const Request& request, const Identity& identity) {
    if (request.count("Host") != 1) {
        return Wrong{400, "Exactly one Host header is needed."};
    }
    const auto value = request.header("Host");
    const auto host = value.substr(0, value.find(':'));
    const auto same = [&](std::string_view known) { return sameHeader(host, known); };
    if (std::ranges::any_of(identity.hosts, same) || same("localhost") || same("127.0.0.1")) {
        return {};
    }
    return Wrong{421, "The host " + std::string(host) + " is not served here."};
}

Verdict checkIdentity(const Request& request, const Rule& rule, const Identity& identity) {
    if (request.count("Consultant-Token") == 0) {
        return Wrong{401, "The header Consultant-Token is missing."};
    }
    if (const auto token = checkToken(request.header("Consultant-Token"), identity.secret); !token) {
        return Wrong{401, token.error()};
    }
    if (rule.needsProvider && request.header("Authorization-Provider").empty()) {
        return Wrong{403, "The header Authorization-Provider is missing or empty."};
    }
    if (!rule.needsProvider && request.count("Authorization-Provider") > 0) {
        return Wrong{400, "The header Authorization-Provider does not belong to this call."};
    }
    return {};
}

Verdict checkHeaders(const Request& request, const Rule& rule) {
    for (const auto& [name, value] : request.headers) {
        const auto same = [&](std::string_view known) { return sameHeader(name, known); };
        const bool own = std::ranges::any_of(ownHeaders, same);
        if (!own && std::ranges::none_of(transportHeaders, same)) {
            return Wrong{400, "The header " + name + " does not belong to this call."};
        }
        if (own && request.count(name) > 1) {
            return Wrong{400, "The header " + name + " came more than once."};
        }
    }
    if (rule.hasBody && request.header("Content-Type") != mediaType) {
        return Wrong{415, "Content-Type must be application/json."};
    }
    if (!rule.hasBody && request.count("Content-Type") > 0) {
        return Wrong{415, "A call without a body carries no Content-Type."};
    }
    if (!rule.hasBody && request.header("Accept") != mediaType) {
        return Wrong{406, "Accept must be application/json."};
    }
    return {};
}

Verdict checkQuery(const Target& target, const Rule& rule) {
    if (rule.query && target.query != *rule.query) {
        return Wrong{400, "The query must be exactly " + std::string(*rule.query) + "."};
    }
    if (!rule.query && target.query) {
        return Wrong{400, "This call takes no query."};
    }
    return {};
}

std::expected<std::uint64_t, Wrong> consultantOfBody(const std::string& body) {
    const auto json = Json::parse(body, nullptr, false);
    if (json.is_discarded()) {
        return std::unexpected(Wrong{400, "The body is not JSON."});
    }
    const Wrong shape{422,
                      "The body must be {\"consultant\":{\"id\":N}} and nothing else, N a whole number."};
    if (!json.is_object() || json.size() != 1 || !json.contains("consultant")) {
        return std::unexpected(shape);
    }
    const auto& consultant = json["consultant"];
    if (!consultant.is_object() || consultant.size() != 1 || !consultant.contains("id") ||
        !consultant["id"].is_number_unsigned()) {
        return std::unexpected(shape);
    }
    return consultant["id"].get<std::uint64_t>();
}

std::expected<std::uint64_t, Wrong> consultantOfPath(const std::string& text) {
    std::uint64_t id = 0;
    const auto* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, id);
    // The text must equal the number printed: no sign, no leading zeros.
    if (error != std::errc{} || stop != end || std::to_string(id) != text) {
        return std::unexpected(
            Wrong{400, "The consultant's number in the path is not a plain decimal number."});
    }
    return id;
}

std::expected<Call, Wrong> check(const Request& request, const Identity& identity) {
    if (auto wrong = checkHost(request, identity)) {
        return std::unexpected(*wrong);
    }
    auto target = parseTarget(request.target);
    if (!target && target.error() == TargetError::badEncoding) {
        return std::unexpected(Wrong{400, "The path is not percent-encoded as it should be."});
    }
    if (!target && target.error() == TargetError::dotSegment) {
        return std::unexpected(Wrong{400, "The path has a segment of dots."});
    }
    if (!target) {
        return std::unexpected(Wrong{404, "There is nothing under this path."});
    }
    const auto& rule = *std::ranges::find(rules, target->kind, &Rule::kind);
    if (request.method != rule.method) {
        return std::unexpected(Wrong{405, "This path is for " + std::string(rule.method) + " only."});
    }
    if (auto wrong = checkIdentity(request, rule, identity)) {
        return std::unexpected(*wrong);
    }
    if (auto wrong = checkHeaders(request, rule)) {
        return std::unexpected(*wrong);
    }
    if (auto wrong = checkQuery(*target, rule)) {
        return std::unexpected(*wrong);
    }
    if (!rule.hasBody && !request.body.empty()) {
        return std::unexpected(Wrong{400, "This call has no body."});
    }
    const auto id = rule.hasBody ? consultantOfBody(request.body) : consultantOfPath(target->consultant);
    if (!id) {
        return std::unexpected(id.error());
    }
    return Call{target->kind, *id, std::move(target->country), std::move(target->cart)};
}

} // namespace

const Identity& builtInIdentity() {
    static constexpr Identity identity{
        .hosts = {QUILLET_GATEWAY_HOST_DEV, QUILLET_GATEWAY_HOST_HML, QUILLET_GATEWAY_HOST_PRD},
        .secret = QUILLET_SIGNING_SECRET};
    return identity;
}

std::expected<Call, Reply> checkRequest(const Request& request, const Identity& identity) {
    auto call = check(request, identity);
    if (call) {
        return std::move(*call);
    }
    auto reply = clientError(call.error().status, request.target, call.error().details);
    if (reply.status == 405) {
        const auto target = parseTarget(request.target);
        const auto& rule = *std::ranges::find(rules, target->kind, &Rule::kind);
        reply.headers.emplace_back("Allow", rule.method);
    }
    return std::unexpected(std::move(reply));
}

} // namespace quillet::gateway
