#include "Network/Errors/NetworkErrorParser.hpp"

#include <utility>

namespace quillet {

NetworkErrorParser::NetworkErrorParser(std::shared_ptr<const HttpErrorThrowable> httpErrorFactory)
    : httpErrorFactory_(std::move(httpErrorFactory)) {}

std::optional<ServiceError>
NetworkErrorParser::parse(const std::optional<std::string>& data,
                          const std::optional<platform::HTTPURLResponse>& response,
                          std::optional<platform::URLError> transportError) const {
    const std::int64_t status = response ? response->statusCode : 0;
    if (status >= 400 && status <= 499) {
        return httpErrorFactory_->parseError(data, status, HttpErrorModel::clientError);
    }
    if (status >= 500 && status <= 599) {
        return httpErrorFactory_->parseError(data, status, HttpErrorModel::serverError);
    }
    return transportError;
}

} // namespace quillet
