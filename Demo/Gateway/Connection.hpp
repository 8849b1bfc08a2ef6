#pragma once

#include "Gateway/Log.hpp"
#include "Gateway/Router.hpp"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl/context.hpp>
#include <boost/asio/ssl/stream.hpp>

namespace quillet::gateway {

/// One client's connection, from the TLS handshake to its end. It blocks: each runs on a thread of its own,
/// so that the code states what happens on the wire in its order.
class Connection {
public:
    using Clock = std::chrono::steady_clock;
    static constexpr auto busy = Clock::time_point::max();

    Connection(std::uint64_t number, boost::asio::ip::tcp::socket socket, boost::asio::ssl::context& tls,
               const Router& router, Log& log);

    /// Answers requests until the client goes, a fault ends the connection, or `interrupt` is called. Closes
    /// the socket.
    void run();

    /// Ends `run` soon, wherever it is. May be called from any thread, also after `run` has ended.
    void interrupt();

    /// Since when it has waited for its client to say something; `busy` while a request is carried out or
    /// answered. From any thread.
    [[nodiscard]] Clock::time_point waitingSince() const { return waitingSince_; }

private:
    // What follows an answer: the next request, an orderly TLS close, or a cut.
    enum class Then { next, part, drop };

    void serve();
    [[nodiscard]] Then answer(const Request& request, const Outcome& outcome, bool keepAlive);
    void send(const std::string& bytes);
    [[nodiscard]] bool waitFor(std::chrono::milliseconds time);
    void waitForClientToGo();
    void endPolitely();

    std::uint64_t number_;
    boost::asio::ssl::stream<boost::asio::ip::tcp::socket> stream_;
    const Router& router_;
    Log& log_;
    std::atomic<Clock::time_point> waitingSince_ = Clock::now();

    std::mutex mutex_;
    std::condition_variable interruption_;
    bool interrupted_ = false;
    bool closed_ = false;
};

} // namespace quillet::gateway
