#include "Platform/Http/SystemNetworkPathMonitor.hpp"

#ifndef _WIN32
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace quillet::platform {

#ifndef _WIN32

namespace {

// Connecting a datagram socket only looks up the route and sends nothing.
bool mayHaveRoute(int family, const void* address, socklen_t size) {
    const int socket = ::socket(family, SOCK_DGRAM, 0);
    if (socket < 0) {
        return errno != EAFNOSUPPORT;
    }
    const bool isRouted = ::connect(socket, static_cast<const sockaddr*>(address), size) == 0;
    const int error = errno;
    ::close(socket);
    switch (isRouted ? 0 : error) {
    case ENETUNREACH:
    case EHOSTUNREACH:
    case ENETDOWN:
    case EADDRNOTAVAIL:
    case EAFNOSUPPORT:
        return false;
    }
    return true;
}

} // namespace

bool SystemNetworkPathMonitor::isSatisfied(const std::string&, bool isMapped) const {
    if (isMapped) {
        return true;
    }
    // The addresses are set aside for documentation (RFC 5737, RFC 3849), so only a default route leads
    // there. The port is that of the discard service; any would do.
    constexpr in_port_t port = 9;
    sockaddr_in v4{};
    v4.sin_family = AF_INET;
    v4.sin_port = htons(port);
    inet_pton(AF_INET, "192.0.2.1", &v4.sin_addr);
    sockaddr_in6 v6{};
    v6.sin6_family = AF_INET6;
    v6.sin6_port = htons(port);
    inet_pton(AF_INET6, "2001:db8::1", &v6.sin6_addr);
    return mayHaveRoute(AF_INET, &v4, sizeof v4) || mayHaveRoute(AF_INET6, &v6, sizeof v6);
}

#else

// Not implemented for Windows, where GetNetworkConnectivityHint would tell. A device without a network is
// reported there as a host that cannot be found.
bool SystemNetworkPathMonitor::isSatisfied(const std::string&, bool) const {
    return true;
}

#endif

} // namespace quillet::platform
