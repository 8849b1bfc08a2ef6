#pragma once

#include "Support/ListeningPort.hpp"
#include "Support/Recorder.hpp"
#include "Support/TestAuthority.hpp"

#include <cstdint>
#include <deque>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace quillet::testing {

/// What the server does with one request.
struct Answer {
    enum class Ending {
        /// The connection stays open for the next request.
        keepOpen,
        /// TLS and then TCP are closed in order.
        close,
        /// TCP is closed without close_notify, like a cut line.
        cut,
        /// TCP is reset.
        reset,
    };

    /// Sent unchanged in these pieces; before each piece but the first the server calls `pace`.
    std::vector<std::string> pieces;
    Ending ending = Ending::keepOpen;
    std::function<void()> pace = {};

    /// A complete answer with a content length.
    static Answer complete(int status, const std::string& body, const std::string& headers = "");
    /// The same bytes in pieces of `size` bytes.
    [[nodiscard]] Answer sliced(std::size_t size) const;
};

/// How a server is reached.
struct ServerPlace {
    /// On all addresses; 0 for a free port of the loopback.
    std::uint16_t port = 0;
    /// A proxy: the client asks for a tunnel first, which leads to this server whatever its target.
    bool isProxy = false;
    /// What the proxy answers to that; with another status than 200 it gives no tunnel.
    int proxyStatus = 200;
    /// Called first on each of the server's threads, if given.
    std::function<void()> onThread = {};
};

/// An HTTPS server that answers from a script, one Answer a request, on whichever connection, and keeps every
/// request. A request beyond the script is never answered.
class FaultServer {
public:
    /// Without a context it hangs up in the middle of each handshake.
    explicit FaultServer(ContextPointer context, ServerPlace place = {});
    ~FaultServer();

    [[nodiscard]] std::uint16_t port() const { return listener_.port(); }
    void enqueue(Answer answer);
    /// For the connections from now on.
    void setContext(ContextPointer context);

    /// The requests received so far, each with its head and body unchanged, also those that broke off.
    [[nodiscard]] std::vector<std::string> requests() { return requests_.all(); }
    [[nodiscard]] std::size_t connections();
    void waitForRequests(std::size_t count) { static_cast<void>(requests_.wait(count - 1)); }

private:
    [[nodiscard]] std::thread newThread(std::function<void()> work) const;
    void acceptConnections();
    void serve(int socket);
    [[nodiscard]] bool answerOneRequest(SSL* tls, int socket);

    std::shared_ptr<SSL_CTX> context_;
    const ServerPlace place_;
    const ListeningPort listener_{place_.port};
    std::mutex mutex_;
    std::deque<Answer> script_;
    Recorder<std::string> requests_;
    std::vector<int> sockets_;
    std::list<std::thread> servers_;
    std::thread acceptor_;
};

} // namespace quillet::testing
