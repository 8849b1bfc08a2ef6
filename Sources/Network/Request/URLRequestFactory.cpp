#include "Network/Request/URLRequestFactory.hpp"

#include "Network/Request/URLRequestWrapper.hpp"

namespace quillet {

std::unique_ptr<URLRequestable> URLRequestFactory::create(const platform::Url& url) const {
    return std::make_unique<URLRequestWrapper>(platform::URLRequest{.url = url});
}

} // namespace quillet
