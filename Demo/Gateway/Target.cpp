#include "Gateway/Target.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace quillet::gateway {

namespace {

constexpr std::array<std::pair<CallKind, std::string_view>, 3> names{{
    {CallKind::associate, "associate"},
    {CallKind::open, "open"},
    {CallKind::checkout, "checkout"},
}};

std::optional<std::string> percentDecode(std::string_view text) {
    std::string decoded;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '%') {
            decoded += text[at];
            continue;
        }
        unsigned char byte = 0;
        const auto digits = text.substr(at + 1, 2);
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
        if (digits.size() != 2 || error != std::errc{} || end != digits.data() + 2) {
            return std::nullopt;
        }
        decoded += static_cast<char>(byte);
        at += 2;
    }
    return decoded;
}

// Whether another server, which tidies paths up, would see another path than is written here.
bool hasDotSegment(std::string path) {
    std::ranges::replace(path, '\\', '/');
    path += '/';
    return path.find("/./") != std::string::npos || path.find("/../") != std::string::npos;
}

bool take(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) {
        return false;
    }
    text.remove_prefix(prefix.size());
    return true;
}

std::string_view takeSegment(std::string_view& text) {
    const auto segment = text.substr(0, text.find('/'));
    text.remove_prefix(segment.size());
    return segment;
}

} // namespace

std::string_view name(CallKind kind) {
    return std::ranges::find(names, kind, &std::pair<CallKind, std::string_view>::first)->second;
}

std::optional<CallKind> callKind(std::string_view name) {
    const auto* const found = std::ranges::find(names, name, &std::pair<CallKind, std::string_view>::second);
    return found == names.end() ? std::nullopt : std::optional(found->first);
}

std::expected<Target, TargetError> parseTarget(std::string_view target) {
    std::optional<std::string> query;
    if (const auto mark = target.find('?'); mark != std::string_view::npos) {
        query = target.substr(mark + 1);
        target = target.substr(0, mark);
    }
    const auto decoded = percentDecode(target);
    if (!decoded) {
        return std::unexpected(TargetError::badEncoding);
    }
    if (hasDotSegment(*decoded)) {
        return std::unexpected(TargetError::dotSegment);
    }
    const auto make = [&](CallKind kind, std::string_view cart, std::string_view country,
                          std::string_view consultant) {
        return Target{kind, percentDecode(cart).value_or(""), percentDecode(country).value_or(""),
                      percentDecode(consultant).value_or(""), query};
    };

    if (take(target, "/quillet-bff/sell-out-carts/")) {
        return make(CallKind::associate, target, "", "");
    }
    if (!take(target, "/quillet-bff/consultants/")) {
        return std::unexpected(TargetError::unknown);
    }
    const auto country = takeSegment(target);
    if (!take(target, "/")) {
        return std::unexpected(TargetError::unknown);
    }
    const auto consultant = takeSegment(target);
    if (target == "/sell-out-carts") {
        return make(CallKind::open, "", country, consultant);
    }
    if (target == "/sell-out-carts/checkout") {
        return make(CallKind::checkout, "", country, consultant);
    }
    return std::unexpected(TargetError::unknown);
}

} // namespace quillet::gateway
