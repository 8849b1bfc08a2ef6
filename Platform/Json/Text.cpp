#include "Platform/Json/Text.hpp"

#include <charconv>
#include <cstdint>
#include <optional>

namespace quillet::platform::json {

namespace {

constexpr std::size_t hexDigits = 4;

/// Takes four hex digits from the start of `rest`.
std::optional<std::uint32_t> takeHex(std::string_view& rest) {
    std::uint32_t unit = 0;
    const std::string_view digits = rest.substr(0, hexDigits);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), unit, 16);
    if (error != std::errc() || end != digits.data() + hexDigits) {
        return std::nullopt;
    }
    rest.remove_prefix(hexDigits);
    return unit;
}

/// Takes the code point of a \u escape from `rest`, which begins behind the \u.
std::optional<std::uint32_t> takeCodePoint(std::string_view& rest) {
    const auto first = takeHex(rest);
    if (!first || *first < 0xD800 || *first > 0xDFFF) {
        return first;
    }
    if (*first > 0xDBFF || !rest.starts_with("\\u")) {
        return std::nullopt;
    }
    rest.remove_prefix(2);
    const auto second = takeHex(rest);
    if (!second || *second < 0xDC00 || *second > 0xDFFF) {
        return std::nullopt;
    }
    return 0x10000 + ((*first - 0xD800) << 10) + (*second - 0xDC00);
}

void appendUtf8(std::string& text, std::uint32_t codePoint) {
    const auto continuation = [&](int shift) {
        text += static_cast<char>(0x80 | ((codePoint >> shift) & 0x3F));
    };
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        text += static_cast<char>(0xC0 | (codePoint >> 6));
        continuation(0);
    } else if (codePoint < 0x10000) {
        text += static_cast<char>(0xE0 | (codePoint >> 12));
        continuation(6);
        continuation(0);
    } else {
        text += static_cast<char>(0xF0 | (codePoint >> 18));
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

/// The character of the one-letter escape `letter`; NUL for any other letter.
char plainEscape(char letter) {
    switch (letter) {
    case '"':
    case '\\':
    case '/':
        return letter;
    case 'b':
        return '\b';
    case 'f':
        return '\f';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    }
    return '\0';
}

} // namespace

bool unescape(std::string_view raw, std::string& text) {
    text.clear();
    // Decoded text is never longer than the escaped text, so this is the only allocation.
    text.reserve(raw.size());
    for (;;) {
        const std::size_t plain = raw.find('\\');
        text.append(raw.substr(0, plain));
        if (plain == raw.npos) {
            return true;
        }
        raw.remove_prefix(plain + 1);
        if (raw.empty()) {
            return false;
        }
        const char letter = raw.front();
        raw.remove_prefix(1);
        if (letter == 'u') {
            const auto codePoint = takeCodePoint(raw);
            if (!codePoint) {
                return false;
            }
            appendUtf8(text, *codePoint);
        } else if (const char character = plainEscape(letter)) {
            text += character;
        } else {
            return false;
        }
    }
}

} // namespace quillet::platform::json
