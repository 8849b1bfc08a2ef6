#pragma once

#include <string_view>

namespace quillet::platform {

/// Whether the text may be a method or a header's name: RFC 9110's token.
[[nodiscard]] bool isHTTPToken(std::string_view text);

/// Whether the text may be a header's value: no control character but a tab.
[[nodiscard]] bool isHTTPFieldValue(std::string_view text);

/// Letter case of ASCII does not count, as in header and host names.
[[nodiscard]] bool equalIgnoringCase(std::string_view left, std::string_view right);

} // namespace quillet::platform
