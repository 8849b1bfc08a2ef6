#include "Platform/Json/Cursor.hpp"

#include "Platform/Json/NumberToken.hpp"
#include "Platform/Json/Text.hpp"

#include <bitset>

namespace quillet::platform::json {

bool Cursor::moveWindow(const char* start) {
    if (!index_.moveTo(start)) {
        return invalidate();
    }
    begin_ = index_.begin();
    next_ = index_.offsets();
    refillAt_ = index_.refillAt();
    return true;
}

bool Cursor::skipString() {
    if (peek() != '"') {
        return invalidate();
    }
    const std::string_view raw = passString();
    return !hasEscapes(raw) || unescape(raw, scratch_) || invalidate();
}

bool Cursor::skipScalar() {
    switch (peek()) {
    case '"':
        return skipString();
    case 't':
        return passLiteral("true");
    case 'f':
        return passLiteral("false");
    case 'n':
        return passLiteral("null");
    }
    ShortNumber number;
    if (readShort(number)) {
        return passToken();
    }
    const auto longer = scanNumber(rest());
    return longer ? passScalar(longer->end) : invalidate();
}

bool Cursor::skip() {
    return peek() == '{' || peek() == '[' ? skipNested() : skipScalar();
}

bool Cursor::skipNested() {
    // Iterative, with one bit for each level of nesting, so that no body can exhaust the stack.
    std::bitset<maximumDepth + 1> objects;
    const int outside = depth_;
    const auto inObject = [&] { return objects.test(static_cast<std::size_t>(depth_)); };
    const auto closing = [&] { return inObject() ? '}' : ']'; };
    do {
        bool more = false;
        if (peek() == '{' || peek() == '[') {
            const bool object = peek() == '{';
            if (!open()) {
                return false;
            }
            objects.set(static_cast<std::size_t>(depth_), object);
            more = first(closing());
        } else if (!skipScalar()) {
            return false;
        }
        while (!more && depth_ > outside && !invalid_) {
            more = next(closing());
        }
        if (more && inObject() && !(skipString() && passColon())) {
            return false;
        }
    } while (depth_ > outside && !invalid_);
    return !invalid_;
}

} // namespace quillet::platform::json
