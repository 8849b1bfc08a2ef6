#include "Network/Session/URLSessionDataTaskWrapper.hpp"

#include <utility>

namespace quillet {

URLSessionDataTaskWrapper::URLSessionDataTaskWrapper(platform::URLSessionDataTask dataTask)
    : dataTask_(std::move(dataTask)) {}

void URLSessionDataTaskWrapper::resume() {
    dataTask_.resume();
}

} // namespace quillet
