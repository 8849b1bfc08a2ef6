#include "Platform/Json/JSONEncoder.hpp"

#include "Platform/Json/Utf8.hpp"

#include <nlohmann/json.hpp>

#include <concepts>
#include <string_view>
#include <utility>

namespace quillet::platform {

namespace {

// `path` leads to the value, with a dot before each name but the first.
using Written = std::expected<void, EncodingError>;
Written write(std::string& json, const JSONValue& value, const std::string& path);

Written write(std::string& json, const std::string& text, const std::string& path) {
    if (!isUtf8(text)) {
        return std::unexpected(EncodingError{path});
    }
    // nlohmann::json only writes the texts here. Destroying a tree of its values allocates memory, and a
    // failure there terminates the program.
    for (const char c : nlohmann::json(text).dump()) {
        if (c == '/') {
            json += '\\';
        }
        json += c;
    }
    return {};
}

template <std::integral Number>
Written write(std::string& json, Number number, const std::string&) {
    json += std::to_string(number);
    return {};
}

Written write(std::string& json, const JSONValue::Object& members, const std::string& path) {
    json += '{';
    for (std::string_view separator; const auto& [key, member] : members) {
        json += std::exchange(separator, ",");
        if (auto written = write(json, key, path); !written) {
            return written;
        }
        json += ':';
        if (auto written = write(json, member, path.empty() ? key : path + "." + key); !written) {
            return written;
        }
    }
    json += '}';
    return {};
}

Written write(std::string& json, const JSONValue& value, const std::string& path) {
    return std::visit([&](const auto& one) { return write(json, one, path); }, value.value());
}

} // namespace

std::expected<std::string, EncodingError> encodeJSON(const JSONValue& value) {
    std::string json;
    if (auto written = write(json, value, {}); !written) {
        return std::unexpected(std::move(written).error());
    }
    return json;
}

} // namespace quillet::platform
