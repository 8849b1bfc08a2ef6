#include "Platform/Json/JSONEncoder.hpp"

#include "Platform/Json/Utf8.hpp"

#include <algorithm>
#include <array>
#include <concepts>
#include <string_view>
#include <utility>

namespace quillet::platform {

namespace {

// `path` leads to the value, with a dot before each name but the first.
using Written = std::expected<void, EncodingError>;
Written write(std::string& json, const JSONValue& value, const std::string& path);

// Whether a byte is written in another way than as it is.
constexpr auto isEscaped = [] {
    std::array<bool, 256> table{};
    std::fill_n(table.begin(), 0x20, true);
    table['"'] = table['\\'] = table['/'] = true;
    return table;
}();

void writeEscaped(std::string& json, unsigned char c) {
    constexpr std::string_view named = "\"\\/\b\f\n\r\t";
    constexpr std::string_view names = "\"\\/bfnrt";
    json += '\\';
    if (const auto which = named.find(static_cast<char>(c)); which != std::string_view::npos) {
        json += names[which];
    } else {
        json += "u00";
        json += "01"[c >> 4];
        json += "0123456789abcdef"[c & 0xf];
    }
}

Written write(std::string& json, const std::string& text, const std::string& path) {
    if (!isUtf8(text)) {
        return std::unexpected(EncodingError{path});
    }
    json += '"';
    for (auto rest = text.begin();; ++rest) {
        const auto next = std::find_if(rest, text.end(), [](unsigned char c) { return isEscaped[c]; });
        json.append(rest, next);
        if (next == text.end()) {
            break;
        }
        writeEscaped(json, static_cast<unsigned char>(*next));
        rest = next;
    }
    json += '"';
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
