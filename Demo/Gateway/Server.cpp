#include "Gateway/Server.hpp"

#include "Gateway/Connection.hpp"

#include <algorithm>
#include <array>
#include <atomic>
#include <list>
#include <thread>

#include <boost/asio/io_context.hpp>
#include <boost/asio/posix/stream_descriptor.hpp>
#include <boost/asio/signal_set.hpp>
#include <boost/asio/steady_timer.hpp>

#include <sys/resource.h>
#include <unistd.h>

namespace quillet::gateway {

namespace {

namespace asio = boost::asio;
using Failure = boost::system::error_code;

constexpr rlim_t mostConnections = 256;
/// Handles that connections leave to the database, the log and the standard streams.
constexpr rlim_t keptHandles = 32;
constexpr std::chrono::milliseconds waitForHandle{100};

struct Session {
    explicit Session(auto&&... parts) : connection(std::forward<decltype(parts)>(parts)...) {}

    Connection connection;
    std::atomic<bool> ended = false;
    /// Whether it was asked to end, to make room for another one.
    bool leaves = false;
    std::jthread thread;
};

std::ptrdiff_t connectionLimit() {
    rlimit handles{};
    ::getrlimit(RLIMIT_NOFILE, &handles);
    const auto limit = std::clamp(handles.rlim_cur, keptHandles + 1, keptHandles + mostConnections);
    return static_cast<std::ptrdiff_t>(limit - keptHandles);
}

void usePair(asio::ssl::context& tls, const Credentials& credentials) {
    auto* const context = tls.native_handle();
    if (SSL_CTX_use_certificate(context, credentials.certificate.get()) != 1 ||
        SSL_CTX_use_PrivateKey(context, credentials.key.get()) != 1 ||
        SSL_CTX_set_min_proto_version(context, TLS1_2_VERSION) != 1) {
        throw std::runtime_error("OpenSSL does not take the server's certificate");
    }
}

} // namespace

struct Server::Implementation {
    Implementation(std::uint16_t port, const Router& itsRouter, Log& itsLog)
        : acceptor(loop, {asio::ip::address_v4::loopback(), port}, true), router(itsRouter), log(itsLog) {}

    void accept() {
        acceptor.async_accept([this](const Failure& failure, asio::ip::tcp::socket socket) {
            if (failure == asio::error::operation_aborted) {
                return;
            }
            sessions.remove_if([](const Session& session) { return session.ended.load(); });
            const bool full = std::ranges::count(sessions, false, &Session::leaves) >= limit;
            const bool hasRoom = (!failure && !full) || makeRoom();
            if (failure) {
                // No handle is left. The client stays in the queue, so trying again at once would only spin.
                retry.expires_after(waitForHandle);
                retry.async_wait([this](const Failure&) { accept(); });
                return;
            }
            // Without room the accepted socket is closed here.
            if (hasRoom) {
                start(std::move(socket));
            }
            accept();
        });
    }

    /// Ends the connection that has waited longest for its client. False if each of them has something to do.
    bool makeRoom() {
        const auto waiting = [](const Session& session) {
            return session.leaves ? Connection::busy : session.connection.waitingSince();
        };
        const auto longest = std::ranges::min_element(sessions, {}, waiting);
        if (longest == sessions.end() || waiting(*longest) == Connection::busy) {
            return false;
        }
        longest->leaves = true;
        longest->connection.interrupt();
        return true;
    }

    void start(asio::ip::tcp::socket socket) {
        auto& session = sessions.emplace_back(++number, std::move(socket), tls, router, log);
        try {
            session.thread = std::jthread([&session] {
                session.connection.run();
                session.ended = true;
            });
        } catch (const std::system_error&) {
            // The machine has no thread for it, which must not end the others.
            sessions.pop_back();
        }
    }

    void readStdin() {
        input.async_read_some(asio::buffer(ignored), [this](const Failure& failure, std::size_t) {
            // Regular files and /dev/null cannot be polled with epoll and count as ended.
            failure ? loop.stop() : readStdin();
        });
    }

    asio::io_context loop{1};
    asio::ssl::context tls{asio::ssl::context::tls_server};
    asio::ip::tcp::acceptor acceptor;
    asio::steady_timer retry{loop};
    asio::signal_set signals{loop, SIGTERM, SIGINT};
    asio::posix::stream_descriptor input{loop};
    std::array<char, 256> ignored{};
    const Router& router;
    Log& log;
    const std::ptrdiff_t limit = connectionLimit();
    std::uint64_t number = 0;
    // Only the loop's thread uses the list. A connection's thread uses its own connection only.
    std::list<Session> sessions;
};

Server::Server(std::uint16_t port, const Credentials& credentials, const Router& router, Log& log)
    : implementation_(std::make_unique<Implementation>(port, router, log)) {
    usePair(implementation_->tls, credentials);
}

Server::~Server() = default;

std::uint16_t Server::port() const {
    return implementation_->acceptor.local_endpoint().port();
}

void Server::run(bool stopWithStdin) {
    auto& self = *implementation_;
    self.signals.async_wait([&self](const Failure&, int) { self.loop.stop(); });
    if (stopWithStdin) {
        Failure failure;
        self.input.assign(::dup(STDIN_FILENO), failure);
        failure ? self.loop.stop() : self.readStdin();
    }
    self.accept();
    self.loop.run();
    for (auto& session : self.sessions) {
        session.connection.interrupt();
    }
    self.sessions.clear();
}

} // namespace quillet::gateway
