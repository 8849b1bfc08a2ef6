#include "Platform/Json/Reader.hpp"

#include "Platform/Json/Text.hpp"

#include <optional>
#include <utility>

namespace quillet::platform::json {

bool Reader::read(std::string& value) {
    if (cursor_.peek() != '"') {
        return passUnexpected(expectedOf<std::string>());
    }
    const std::string_view raw = cursor_.passString();
    if (hasEscapes(raw)) {
        return unescape(raw, value) || cursor_.invalidate();
    }
    value = std::string(raw);
    return true;
}

bool Reader::readText(std::string_view& text, std::string_view expected) {
    if (cursor_.peek() != '"') {
        return passUnexpected(expected);
    }
    text = cursor_.passString();
    if (hasEscapes(text)) {
        if (!unescape(text, scratch_)) {
            return cursor_.invalidate();
        }
        text = scratch_;
    }
    return true;
}

template <typename T>
bool Reader::readNumber(T& value, std::optional<T> (*convert)(const NumberToken&)) {
    ShortNumber longer;
    if (longer.readBlocks(cursor_.token(), cursor_.followingToken()) && take(longer, value)) {
        return cursor_.passToken();
    }
    if (cursor_.peek() != '-' && !isDigit(cursor_.peek())) {
        return passUnexpected(expectedOf<T>());
    }
    const auto number = scanNumber(cursor_.rest());
    if (!number || !cursor_.passScalar(number->end)) {
        return cursor_.invalidate();
    }
    const auto converted = convert(*number);
    if (!converted) {
        return fail(DecodingError::Reason::unexpectedValue, expectedOf<T>());
    }
    value = *converted;
    return true;
}
template bool Reader::readNumber(std::uint64_t&, std::optional<std::uint64_t> (*)(const NumberToken&));
template bool Reader::readNumber(std::int64_t&, std::optional<std::int64_t> (*)(const NumberToken&));
template bool Reader::readNumber(Decimal&, std::optional<Decimal> (*)(const NumberToken&));

bool Reader::passKey(std::string_view& key) {
    return cursor_.peek() == '"' ? readText(key, {}) && cursor_.passColon() : cursor_.invalidate();
}

bool Reader::passUnexpected(std::string_view expected) {
    return cursor_.skip() && fail(DecodingError::Reason::unexpectedValue, expected);
}

bool Reader::fail(DecodingError::Reason reason, std::string_view expected) {
    error_ = {reason, {}, std::string(expected)};
    return false;
}

void Reader::prefixError(std::string_view key) {
    const bool joined = error_.path.empty() || error_.path.front() == '[';
    error_.path.insert(0, std::string(key) + (joined ? "" : "."));
}

void Reader::prefixError(std::size_t position) {
    const bool joined = error_.path.empty() || error_.path.front() == '[';
    error_.path.insert(0, '[' + std::to_string(position) + (joined ? "]" : "]."));
}

} // namespace quillet::platform::json
