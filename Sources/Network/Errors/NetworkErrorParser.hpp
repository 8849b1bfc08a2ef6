#pragma once

#include "Network/Errors/HttpErrorThrowable.hpp"
#include "Quillet/Platform/URLLoading.hpp"

#include <memory>

namespace quillet {

/// Classifies the error of a response.
class NetworkErrorParser {
public:
    explicit NetworkErrorParser(std::shared_ptr<const HttpErrorThrowable> httpErrorFactory);

    /// Status 400 to 499: what the factory makes of a ClientError; 500 to 599: of a ServerError; anything
    /// else, and no response at all: the transport error as it came.
    [[nodiscard]] std::optional<ServiceError> parse(const std::optional<std::string>& data,
                                                    const std::optional<platform::HTTPURLResponse>& response,
                                                    std::optional<platform::URLError> transportError) const;

private:
    std::shared_ptr<const HttpErrorThrowable> httpErrorFactory_;
};

} // namespace quillet
