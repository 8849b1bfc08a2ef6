#pragma once

#include <string>

namespace quillet {

/// A success response that should have had a body had none.
enum class ResponseCodingError { emptyData };

[[nodiscard]] inline std::string description(ResponseCodingError error) {
    return "The operation couldn’t be completed. (Quillet.ResponseCodingError error " +
           std::to_string(static_cast<int>(error)) + ".)";
}

} // namespace quillet
