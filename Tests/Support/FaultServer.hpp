#pragma once

#include "Support/TestAuthority.hpp"

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <latch>
#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace quillet::testing {

/// What the server does about one request.
struct Answer {
    enum class Ending {
        /// The connection stays open for the next request.
        keepOpen,
        /// TLS and then the connection are closed in good order.
        close,
        /// The connection is closed without a word, as if the line were cut.
        cut,
    };

    /// Sent as it is, in the given pieces; before each piece but the first the server waits for `gate`.
    std::vector<std::string> pieces;
    Ending ending = Ending::keepOpen;
    std::shared_ptr<std::latch> gate = nullptr;

    /// A complete answer with a content length.
    static Answer complete(int status, const std::string& body, const std::string& headers = "");
};

/// Where a server is found.
struct ServerPlace {
    /// On all addresses; 0 for a free port of the loopback.
    std::uint16_t port = 0;
    /// The client has to ask for a tunnel first, which leads to this server wherever it should lead.
    bool isProxy = false;
    /// Called first on each of the server's threads, if given.
    std::function<void()> onThread = {};
};

/// An HTTPS server that answers from a script, one Answer a request, whichever
/// connection it comes on, and keeps every request it received. A request beyond the script is kept and never
/// answered.
class FaultServer {
public:
    explicit FaultServer(ContextPointer context, ServerPlace place = {});
    ~FaultServer();

    [[nodiscard]] std::uint16_t port() const { return port_; }
    void enqueue(Answer answer);

    /// All that was received so far, each request with head and body as it came.
    [[nodiscard]] std::vector<std::string> requests();
    [[nodiscard]] std::size_t connections();
    /// False if they do not come.
    [[nodiscard]] bool waitForRequests(std::size_t count);

private:
    [[nodiscard]] std::thread newThread(std::function<void()> work) const;
    void acceptConnections();
    void serve(int socket);
    [[nodiscard]] bool answerOneRequest(SSL* tls);

    ContextPointer context_;
    const ServerPlace place_;
    int listener_ = -1;
    std::uint16_t port_ = 0;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Answer> script_;
    std::vector<std::string> requests_;
    std::vector<int> sockets_;
    std::list<std::thread> servers_;
    std::thread acceptor_;
};

} // namespace quillet::testing
