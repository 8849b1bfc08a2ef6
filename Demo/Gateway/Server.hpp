#pragma once

#include "Gateway/Certificate.hpp"
#include "Gateway/Log.hpp"
#include "Gateway/Router.hpp"

#include <cstdint>
#include <memory>

namespace quillet::gateway {

/// Listens on 127.0.0.1 and gives every client a connection with a thread of its own.
class Server {
public:
    /// Binds the port, 0 for any. Throws `std::system_error` if that cannot be done. The router and the log
    /// must outlive the server.
    Server(std::uint16_t port, const Credentials& credentials, const Router& router, Log& log);
    ~Server();

    /// The port that was bound.
    [[nodiscard]] std::uint16_t port() const;

    /// Serves until SIGTERM or SIGINT comes, or, if asked for, standard input ends. Then ends all
    /// connections, delayed ones too, and returns. Call it once, on the thread that made the server.
    void run(bool stopWithStdin);

private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation_;
};

} // namespace quillet::gateway
