#include "Platform/Json/Utf8.hpp"

#include <simdjson.h>

namespace quillet::platform {

bool isUtf8(std::string_view text) {
    return simdjson::validate_utf8(text);
}

} // namespace quillet::platform
