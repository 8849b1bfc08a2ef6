#include "Gateway/Connection.hpp"

#include "Gateway/ErrorBodies.hpp"

#include <array>
#include <optional>
#include <utility>

#include <boost/asio/write.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/string_body.hpp>

#include <sys/socket.h>

namespace quillet::gateway {

namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using Failure = boost::system::error_code;

constexpr std::uint32_t headerLimit = 16 * 1024;
constexpr std::uint64_t bodyLimit = 64 * 1024;
constexpr std::size_t drainLimit = 1024 * 1024;

Request requestOf(const http::request<http::string_body>& message) {
    Request request{.method = std::string(message.method_string()),
                    .target = std::string(message.target()),
                    .headers = {},
                    .body = message.body()};
    for (const auto& field : message) {
        request.headers.emplace_back(field.name_string(), field.value());
    }
    return request;
}

// The reply to a malformed request; nothing if the client has disconnected.
std::optional<Reply> replyTo(const Failure& failure, const std::string& target) {
    if (failure == http::error::header_limit) {
        return clientError(431, target, "The headers are over 16 KiB.");
    }
    if (failure == http::error::body_limit) {
        return clientError(413, target, "The body is over 64 KiB.");
    }
    const Failure anyOfHttp = http::error::bad_method;
    if (failure.category() == anyOfHttp.category() && failure != http::error::end_of_stream &&
        failure != http::error::partial_message) {
        return clientError(400, target, "This is not HTTP: " + failure.message() + ".");
    }
    return std::nullopt;
}

std::string bytesOf(const Reply& reply, bool keepAlive, bool withBody) {
    auto bytes = "HTTP/1.1 " + std::to_string(reply.status) + " ";
    bytes.append(reasonPhrase(reply.status)).append("\r\n");
    for (const auto& [name, value] : reply.headers) {
        bytes += name + ": " + value + "\r\n";
    }
    const bool mayHaveBody = reply.status != 204 && reply.status != 304;
    if (mayHaveBody) {
        bytes +=
            "Content-Type: application/json\r\nContent-Length: " + std::to_string(reply.body.size()) + "\r\n";
    }
    bytes += std::string("Cache-Control: no-store\r\nConnection: ") + (keepAlive ? "keep-alive" : "close") +
             "\r\n\r\n";
    return withBody && mayHaveBody ? bytes + reply.body : bytes;
}

} // namespace

Connection::Connection(std::uint64_t number, asio::ip::tcp::socket socket, asio::ssl::context& tls,
                       const Router& router, Log& log)
    : number_(number), stream_(std::move(socket), tls), router_(router), log_(log) {}

void Connection::run() {
    try {
        serve();
    } catch (const std::exception&) {
        // The client disconnected in the middle of a request, so there is nobody to report to. Whatever else
        // it is, it ends no other connection.
    }
    // Closing without close_notify makes the body look cut. An orderly end has already sent it.
    const std::lock_guard lock(mutex_);
    closed_ = true;
    Failure ignored;
    stream_.next_layer().close(ignored);
}

void Connection::interrupt() {
    const std::lock_guard lock(mutex_);
    interrupted_ = true;
    interruption_.notify_all();
    // This makes the other thread's blocking reads and writes return at once. That thread still closes the
    // descriptor.
    if (!closed_) {
        ::shutdown(stream_.next_layer().native_handle(), SHUT_RDWR);
    }
}

void Connection::serve() {
    stream_.next_layer().set_option(asio::ip::tcp::no_delay(true));
    stream_.handshake(asio::ssl::stream_base::server);
    beast::flat_buffer buffer;
    for (auto then = Then::next; then == Then::next;) {
        http::request_parser<http::string_body> parser;
        parser.header_limit(headerLimit);
        parser.body_limit(bodyLimit);
        Failure failure;
        http::read(stream_, buffer, parser, failure);
        waitingSince_ = busy;
        if (failure) {
            if (const auto reply = replyTo(failure, std::string(parser.get().target()))) {
                send(bytesOf(*reply, false, true));
            }
            break;
        }
        const auto request = requestOf(parser.get());
        const auto outcome = router_.handle(request);
        log_.write(number_, request, outcome);
        then = answer(request, outcome, parser.get().keep_alive());
        if (then == Then::drop) {
            return;
        }
        waitingSince_ = Clock::now();
    }
    waitingSince_ = Clock::now();
    endPolitely();
}

Connection::Then Connection::answer(const Request& request, const Outcome& outcome, bool keepAlive) {
    const auto afterwards = keepAlive ? Then::next : Then::part;
    auto bytes = bytesOf(outcome.reply, keepAlive, request.method != "HEAD");
    if (!outcome.fault) {
        send(bytes);
        return afterwards;
    }
    switch (outcome.fault->kind) {
    case FaultKind::delay:
        if (!waitFor(delayOf(*outcome.fault))) {
            return Then::drop;
        }
        [[fallthrough]];
    case FaultKind::status:
    case FaultKind::malformed:
        send(bytes);
        return afterwards;
    case FaultKind::cut:
        bytes.resize(bytes.size() - (outcome.reply.body.size() + 1) / 2);
        send(bytes);
        return Then::drop;
    case FaultKind::silence:
        waitForClientToGo();
        return Then::drop;
    case FaultKind::close:
        return Then::drop;
    }
    std::unreachable();
}

void Connection::send(const std::string& bytes) {
    asio::write(stream_, asio::buffer(bytes));
}

bool Connection::waitFor(std::chrono::milliseconds time) {
    std::unique_lock lock(mutex_);
    return !interruption_.wait_for(lock, time, [this] { return interrupted_; });
}

void Connection::waitForClientToGo() {
    std::array<char, 4096> ignored;
    Failure gone;
    while (!gone) {
        stream_.read_some(asio::buffer(ignored), gone);
    }
}

void Connection::endPolitely() {
    Failure ignored;
    stream_.shutdown(ignored);
    // Unread input is drained first. Closing with unread data sends a reset, and the client could then lose
    // our reply.
    auto& socket = stream_.next_layer();
    socket.shutdown(asio::ip::tcp::socket::shutdown_send, ignored);
    std::array<char, 4096> rest;
    std::size_t drained = 0;
    for (Failure gone; !gone && drained < drainLimit;) {
        drained += socket.read_some(asio::buffer(rest), gone);
    }
}

} // namespace quillet::gateway
