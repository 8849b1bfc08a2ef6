#pragma once

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>

namespace quillet::testing {

/// A port where the system takes connections, which stay silent unless somebody accepts them.
class ListeningPort {
public:
    /// On all addresses; 0 for a free port of the loopback.
    explicit ListeningPort(std::uint16_t port = 0, int backlog = 16) {
        const int again = 1;
        address_.sin_family = AF_INET;
        address_.sin_addr.s_addr = htonl(port == 0 ? INADDR_LOOPBACK : INADDR_ANY);
        address_.sin_port = htons(port);
        ::setsockopt(socket_, SOL_SOCKET, SO_REUSEADDR, &again, sizeof again);
        ::bind(socket_, place(), size_);
        ::getsockname(socket_, place(), &size_);
        ::listen(socket_, backlog);
    }
    ~ListeningPort() { ::close(socket_); }
    ListeningPort(const ListeningPort&) = delete;
    ListeningPort& operator=(const ListeningPort&) = delete;

    [[nodiscard]] int socket() const { return socket_; }
    [[nodiscard]] std::uint16_t port() const { return ntohs(address_.sin_port); }

protected:
    static int newSocket() { return ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0); }
    sockaddr* place() { return reinterpret_cast<sockaddr*>(&address_); }

    sockaddr_in address_{};
    socklen_t size_ = sizeof address_;

private:
    int socket_ = newSocket();
};

/// A port that takes no connection: one fills its backlog, and later SYN packets get no answer.
class DeadPort : public ListeningPort {
public:
    DeadPort() : ListeningPort(0, 0) { ::connect(queued_, place(), size_); }
    ~DeadPort() { ::close(queued_); }

private:
    int queued_ = newSocket();
};

} // namespace quillet::testing
