#pragma once

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>

namespace quillet::testing {

/// A port without answers: connections are accepted and stay silent, or are not even accepted.
class SilentPort {
public:
    enum class Kind { accepting, dropping };

    explicit SilentPort(Kind kind = Kind::accepting) : socket_(newSocket()) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        ::bind(socket_, reinterpret_cast<sockaddr*>(&address), length);
        ::listen(socket_, kind == Kind::dropping ? 0 : 8);
        ::getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &length);
        port_ = ntohs(address.sin_port);
        if (kind == Kind::dropping) {
            // One connection fills the backlog; later SYN packets get no answer.
            queued_ = newSocket();
            ::connect(queued_, reinterpret_cast<sockaddr*>(&address), length);
        }
    }
    ~SilentPort() {
        ::close(socket_);
        if (queued_ >= 0) {
            ::close(queued_);
        }
    }
    SilentPort(const SilentPort&) = delete;
    SilentPort& operator=(const SilentPort&) = delete;
    [[nodiscard]] std::uint16_t port() const { return port_; }

private:
    static int newSocket() { return ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0); }

    int socket_;
    int queued_ = -1;
    std::uint16_t port_ = 0;
};

} // namespace quillet::testing
