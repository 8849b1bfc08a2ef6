#pragma once

#include <string_view>

namespace quillet::platform {

/// Whether the text is valid UTF-8. NUL is a character like any other.
[[nodiscard]] bool isUtf8(std::string_view text);

} // namespace quillet::platform
