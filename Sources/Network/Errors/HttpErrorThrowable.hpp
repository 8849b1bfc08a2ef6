#pragma once

#include "Quillet/Errors.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace quillet {

/// The two records that an error's body can be.
enum class HttpErrorModel { clientError, serverError };

/// Makes the error of an answer with an error status. Pure: may be called on any thread, answers at once.
class HttpErrorThrowable {
public:
    virtual ~HttpErrorThrowable() = default;

    /// The record that `model` names, decoded from the body, or an HttpStatusCodeError with the given status
    /// where the body is absent or does not decode. Always an error, never anything else.
    [[nodiscard]] virtual ServiceError parseError(const std::optional<std::string>& data,
                                                  std::int64_t httpStatusCode,
                                                  HttpErrorModel model) const = 0;
};

} // namespace quillet
