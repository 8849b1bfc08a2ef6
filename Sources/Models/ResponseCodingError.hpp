#pragma once

namespace quillet {

/// A success response that should have had a body had none.
enum class ResponseCodingError { emptyData };

} // namespace quillet
