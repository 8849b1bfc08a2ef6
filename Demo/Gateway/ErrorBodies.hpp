#pragma once

#include "Gateway/Wire.hpp"

#include <string>
#include <string_view>

namespace quillet::gateway {

/// A reply whose body has the flat form of client errors. `details` tells a developer what to correct.
[[nodiscard]] Reply clientError(int status, std::string_view target, std::string_view details);

/// A reply whose body has the nested form of server errors; `code` is the machine-readable one.
[[nodiscard]] Reply serverError(int status, std::string_view target, std::string_view code,
                                std::string_view message);

} // namespace quillet::gateway
