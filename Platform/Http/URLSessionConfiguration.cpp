#include "Quillet/Platform/URLSessionConfiguration.hpp"

#include "Platform/Http/HTTPSyntax.hpp"

#include <algorithm>
#include <mutex>
#include <utility>

namespace quillet::platform {

namespace {

struct SharedConfiguration {
    std::mutex mutex;
    URLSessionConfiguration value;
};

// Never destroyed, because a session's thread may read it during exit.
SharedConfiguration& sharedConfiguration() {
    static auto& shared = *new SharedConfiguration;
    return shared;
}

} // namespace

URLSessionConfiguration URLSessionConfiguration::defaultConfiguration() {
    auto& shared = sharedConfiguration();
    const std::lock_guard lock(shared.mutex);
    return shared.value;
}

void URLSessionConfiguration::setDefaultConfiguration(URLSessionConfiguration configuration) {
    auto& shared = sharedConfiguration();
    const std::lock_guard lock(shared.mutex);
    std::swap(shared.value, configuration);
}

const HostMapping* URLSessionConfiguration::mapping(std::string_view host) const {
    const auto same = [&](const HostMapping& mapping) { return equalIgnoringCase(mapping.host, host); };
    const auto mapping = std::ranges::find_if(hostMappings, same);
    return mapping == hostMappings.end() ? nullptr : &*mapping;
}

} // namespace quillet::platform
