#include "Platform/Http/HTTPSyntax.hpp"

#include <algorithm>

namespace quillet::platform {

namespace {

char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isTokenCharacter(char c) {
    return (c >= '0' && c <= '9') || (lowerCase(c) >= 'a' && lowerCase(c) <= 'z') ||
           std::string_view("!#$%&'*+-.^_`|~").contains(c);
}

bool isControl(char c) {
    return (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7f;
}

} // namespace

bool isHTTPToken(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, isTokenCharacter);
}

bool isHTTPFieldValue(std::string_view text) {
    return std::ranges::none_of(text, isControl);
}

bool equalIgnoringCase(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, lowerCase, lowerCase);
}

} // namespace quillet::platform
