#include "Gateway/Wire.hpp"

#include <algorithm>
#include <array>

namespace quillet::gateway {

namespace {

char lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
}

constexpr std::array<std::pair<int, std::string_view>, 20> phrases{{
    {200, "OK"},
    {204, "No Content"},
    {302, "Found"},
    {400, "Bad Request"},
    {401, "Unauthorized"},
    {403, "Forbidden"},
    {404, "Not Found"},
    {405, "Method Not Allowed"},
    {406, "Not Acceptable"},
    {409, "Conflict"},
    {413, "Content Too Large"},
    {415, "Unsupported Media Type"},
    {421, "Misdirected Request"},
    {422, "Unprocessable Content"},
    {429, "Too Many Requests"},
    {431, "Request Header Fields Too Large"},
    {500, "Internal Server Error"},
    {502, "Bad Gateway"},
    {503, "Service Unavailable"},
    {504, "Gateway Timeout"},
}};

} // namespace

bool sameHeader(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, lower, lower);
}

std::size_t Request::count(std::string_view name) const {
    return static_cast<std::size_t>(
        std::ranges::count_if(headers, [&](const auto& entry) { return sameHeader(entry.first, name); }));
}

std::string_view Request::header(std::string_view name) const {
    const auto found =
        std::ranges::find_if(headers, [&](const auto& entry) { return sameHeader(entry.first, name); });
    return found == headers.end() ? std::string_view{} : std::string_view{found->second};
}

std::string_view reasonPhrase(int status) {
    const auto* const found = std::ranges::find(phrases, status, &std::pair<int, std::string_view>::first);
    return found == phrases.end() ? "Status" : found->second;
}

} // namespace quillet::gateway
