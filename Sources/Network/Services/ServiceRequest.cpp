#include "Network/Services/ServiceRequest.hpp"

namespace quillet {

std::expected<platform::URLRequest, ServiceError>
ServiceRequest::build(const URLRequestCreating& factory,
                      const std::expected<platform::Url, NetworkServiceError>& url) const {
    if (!url) {
        return std::unexpected(url.error());
    }
    const auto request = factory.create(*url);
    request->setHttpMethod(method);
    for (const auto& [name, value] : headerFields) {
        if (const auto added = request->addValue(value, name); !added) {
            return std::unexpected(added.error());
        }
    }
    if (body) {
        if (const auto added = request->addToHttpBody(*body); !added) {
            return std::unexpected(added.error());
        }
    }
    return request->urlRequest();
}

} // namespace quillet
