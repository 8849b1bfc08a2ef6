#pragma once

#include "Network/Errors/HttpErrorThrowable.hpp"

namespace quillet {

/// Makes errors out of the bodies that the back end sends.
class HttpErrorFactory final : public HttpErrorThrowable {
public:
    [[nodiscard]] ServiceError parseError(const std::optional<std::string>& data, std::int64_t httpStatusCode,
                                          HttpErrorModel model) const override;
};

} // namespace quillet
