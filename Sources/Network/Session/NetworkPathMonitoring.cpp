#include "Network/Session/NetworkPathMonitoring.hpp"

#if __has_include(<ifaddrs.h>)
#include <ifaddrs.h>
#include <net/if.h>
#include <sys/socket.h>

#include <memory>
#endif

namespace quillet {

bool SystemNetworkPathMonitor::isSatisfied(const std::string&, bool isMapped) const {
    if (isMapped) {
        return true;
    }
#if __has_include(<ifaddrs.h>)
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0) {
        // A system that cannot tell is not a system without a network: the call itself will show.
        return true;
    }
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> interfaces(list, &freeifaddrs);
    for (const ifaddrs* one = interfaces.get(); one; one = one->ifa_next) {
        const bool hasAddress =
            one->ifa_addr && (one->ifa_addr->sa_family == AF_INET || one->ifa_addr->sa_family == AF_INET6);
        if (hasAddress && (one->ifa_flags & IFF_UP) && (one->ifa_flags & IFF_RUNNING) &&
            !(one->ifa_flags & IFF_LOOPBACK)) {
            return true;
        }
    }
    return false;
#else
    return true;
#endif
}

} // namespace quillet
