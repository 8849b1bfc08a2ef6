#pragma once

#include <string>
#include <string_view>

namespace quillet::platform::json {

/// Whether what stands between a JSON string's quotation marks needs `unescape`.
[[nodiscard]] inline bool hasEscapes(std::string_view raw) {
    return raw.find('\\') != raw.npos;
}

/// Puts the text that `raw`, the bytes between a JSON string's quotation marks, stands for into `text`.
/// False, and `text` is of no use, if an escape is malformed or a surrogate stands alone.
[[nodiscard]] bool unescape(std::string_view raw, std::string& text);

} // namespace quillet::platform::json
