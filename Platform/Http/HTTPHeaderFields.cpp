#include "Quillet/Platform/URLRequest.hpp"

#include "Platform/Http/HTTPSyntax.hpp"

#include <algorithm>

namespace quillet::platform {

std::expected<void, EncodingError> HTTPHeaderFields::addValue(std::string_view value, std::string_view name) {
    if (!isHTTPToken(name)) {
        return std::unexpected(EncodingError{"header name"});
    }
    if (!isHTTPFieldValue(value)) {
        return std::unexpected(EncodingError{std::string(name)});
    }
    const auto same = [&](const HTTPHeaderField& field) { return equalIgnoringCase(field.name, name); };
    if (const auto field = std::ranges::find_if(fields_, same); field != fields_.end()) {
        field->value.append(",").append(value);
    } else {
        fields_.push_back({std::string(name), std::string(value)});
    }
    return {};
}

const std::string* HTTPHeaderFields::value(std::string_view name) const {
    const auto same = [&](const HTTPHeaderField& field) { return equalIgnoringCase(field.name, name); };
    const auto field = std::ranges::find_if(fields_, same);
    return field == fields_.end() ? nullptr : &field->value;
}

} // namespace quillet::platform
