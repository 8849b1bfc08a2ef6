#include "Network/Request/JSONEncoder.hpp"

#include "Network/Support/Utf8.hpp"

#include <nlohmann/json.hpp>

#include <string_view>
#include <utility>

namespace quillet {

namespace {

using Json = nlohmann::ordered_json;

std::expected<Json, EncodingError> checked(const JSONValue& value, const std::string& path);

std::expected<Json, EncodingError> checked(const JSONValue::Object& members, const std::string& path) {
    Json object = Json::object();
    for (const auto& [key, member] : members) {
        if (!isUtf8(key)) {
            return std::unexpected(EncodingError{path});
        }
        auto json = checked(member, path.empty() ? key : path + "." + key);
        if (!json) {
            return json;
        }
        object[key] = *std::move(json);
    }
    return object;
}

std::expected<Json, EncodingError> checked(const std::string& text, const std::string& path) {
    if (!isUtf8(text)) {
        return std::unexpected(EncodingError{path});
    }
    return Json(text);
}

std::expected<Json, EncodingError> checked(std::uint64_t number, const std::string&) {
    return Json(number);
}
std::expected<Json, EncodingError> checked(std::int64_t number, const std::string&) {
    return Json(number);
}

std::expected<Json, EncodingError> checked(const JSONValue& value, const std::string& path) {
    return std::visit([&](const auto& one) { return checked(one, path); }, value.value());
}

// JSON has slashes only inside strings, so they can be escaped in the finished text.
std::string escapingSlashes(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size() + 16);
    for (const char c : text) {
        if (c == '/') {
            escaped += '\\';
        }
        escaped += c;
    }
    return escaped;
}

} // namespace

std::expected<std::string, EncodingError> encodeJSON(const JSONValue& value) {
    const auto json = checked(value, {});
    if (!json) {
        return std::unexpected(json.error());
    }
    return escapingSlashes(json->dump());
}

} // namespace quillet
