#pragma once

#include "Quillet/Errors.hpp"

#include <string>
#include <vector>

namespace quillet::docs {

/// One error of each kind that a call can have, in the order of `ServiceError`.
[[nodiscard]] std::vector<ServiceError> allErrors();
/// The name of an error's type.
[[nodiscard]] std::string nameOf(const ServiceError& error);
/// Every code of a failed exchange.
[[nodiscard]] std::vector<platform::URLError::Code> allCodes();
/// What the first screen shows if the association's answer is this error.
[[nodiscard]] std::string shownForError(ServiceError error, std::int64_t status);

} // namespace quillet::docs
