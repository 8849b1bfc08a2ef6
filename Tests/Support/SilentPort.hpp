#pragma once

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>

namespace quillet::testing {

/// A port on which connections come about and nothing is ever said.
class SilentPort {
public:
    SilentPort() : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        ::bind(socket_, reinterpret_cast<sockaddr*>(&address), length);
        ::listen(socket_, 8);
        ::getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &length);
        port_ = ntohs(address.sin_port);
    }
    ~SilentPort() { ::close(socket_); }
    SilentPort(const SilentPort&) = delete;
    SilentPort& operator=(const SilentPort&) = delete;
    [[nodiscard]] std::uint16_t port() const { return port_; }

private:
    int socket_;
    std::uint16_t port_ = 0;
};

} // namespace quillet::testing
