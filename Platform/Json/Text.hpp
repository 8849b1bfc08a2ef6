#pragma once

#include <string>
#include <string_view>

namespace quillet::platform::json {

/// Whether the raw content of a JSON string has escape sequences.
[[nodiscard]] inline bool hasEscapes(std::string_view raw) {
    return raw.find('\\') != raw.npos;
}

/// Decodes the escape sequences of `raw`, the content of a JSON string, into `text`. Returns false for a
/// malformed escape or an unpaired surrogate; `text` is then unspecified.
[[nodiscard]] bool unescape(std::string_view raw, std::string& text);

} // namespace quillet::platform::json
