#include "Network/Errors/HttpErrorFactory.hpp"

#include "Network/Errors/ErrorFields.hpp"
#include "Platform/Json/Decoder.hpp"

namespace quillet {

namespace {

template <typename Model>
ServiceError decoded(const std::optional<std::string>& data, std::int64_t httpStatusCode) {
    if (data) {
        if (auto model = platform::json::decode<Model>(*data)) {
            return *std::move(model);
        }
    }
    return HttpStatusCodeError{httpStatusCode};
}

} // namespace

ServiceError HttpErrorFactory::parseError(const std::optional<std::string>& data, std::int64_t httpStatusCode,
                                          HttpErrorModel model) const {
    return model == HttpErrorModel::clientError ? decoded<ClientError>(data, httpStatusCode)
                                                : decoded<ServerError>(data, httpStatusCode);
}

} // namespace quillet
