#include "Network/Request/URLRequestFactory.hpp"

#include "Network/Request/URLRequestWrapper.hpp"

namespace quillet {

std::unique_ptr<URLRequestable> URLRequestFactory::create(const Url& url) const {
    return std::make_unique<URLRequestWrapper>(URLRequest{.url = url});
}

} // namespace quillet
