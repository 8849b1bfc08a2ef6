#include "Support/FaultServer.hpp"

#include <netinet/tcp.h>

#include <array>
#include <csignal>
#include <optional>
#include <utility>

namespace quillet::testing {

namespace {

// A head, and a body of the length given there. Only a part, or nothing, when the connection has ended.
std::string readRequest(SSL* tls) {
    std::string request;
    std::size_t whole = std::string::npos;
    while (request.size() < whole) {
        std::array<char, 4096> buffer{};
        const int count = SSL_read(tls, buffer.data(), buffer.size());
        if (count <= 0) {
            break;
        }
        request.append(buffer.data(), static_cast<std::size_t>(count));
        const auto head = request.find("\r\n\r\n");
        if (head != std::string::npos) {
            const auto length = request.find("Content-Length: ");
            whole = head + 4 + (length < head ? std::stoul(request.substr(length + 16)) : 0);
        }
    }
    return request;
}

// The client waits for the answer before it sends more, so no byte of TLS is lost here.
bool giveTunnel(int socket, int status) {
    // It sends so short a request at once.
    std::array<char, 4096> buffer{};
    static_cast<void>(read(socket, buffer.data(), buffer.size()));
    const std::string answer = "HTTP/1.1 " + std::to_string(status) + " Whatever\r\n\r\n";
    return send(socket, answer.data(), answer.size(), MSG_NOSIGNAL) > 0 && status == 200;
}

// Disconnecting a connected socket makes the system send a reset.
void reset(int socket) {
    const sockaddr none{.sa_family = AF_UNSPEC, .sa_data = {}};
    connect(socket, &none, sizeof none);
}

} // namespace

Answer Answer::complete(int status, const std::string& body, const std::string& headers) {
    return {{"HTTP/1.1 " + std::to_string(status) + " Whatever\r\nContent-Length: " +
             std::to_string(body.size()) + "\r\n" + headers + "\r\n" + body}};
}

Answer Answer::sliced(std::size_t size) const {
    Answer answer{{}, ending, pace};
    for (const auto& piece : pieces) {
        for (std::size_t start = 0; start < piece.size(); start += size) {
            answer.pieces.push_back(piece.substr(start, size));
        }
    }
    return answer;
}

FaultServer::FaultServer(ContextPointer context, ServerPlace place)
    : context_(std::move(context)), place_(std::move(place)) {
    std::signal(SIGPIPE, SIG_IGN);
    acceptor_ = newThread([this] { acceptConnections(); });
}

FaultServer::~FaultServer() {
    shutdown(listener_.socket(), SHUT_RDWR);
    acceptor_.join();
    {
        const std::lock_guard lock(mutex_);
        for (const int socket : sockets_) {
            shutdown(socket, SHUT_RDWR);
        }
    }
    for (auto& server : servers_) {
        server.join();
    }
    for (const int socket : sockets_) {
        close(socket);
    }
}

void FaultServer::enqueue(Answer answer) {
    const std::lock_guard lock(mutex_);
    script_.push_back(std::move(answer));
}

void FaultServer::setContext(ContextPointer context) {
    const std::lock_guard lock(mutex_);
    context_ = std::move(context);
}

std::size_t FaultServer::connections() {
    const std::lock_guard lock(mutex_);
    return sockets_.size();
}

std::thread FaultServer::newThread(std::function<void()> work) const {
    return std::thread([prepare = place_.onThread, work = std::move(work)] {
        if (prepare) {
            prepare();
        }
        work();
    });
}

void FaultServer::acceptConnections() {
    while (true) {
        const int socket = accept4(listener_.socket(), nullptr, nullptr, SOCK_CLOEXEC);
        if (socket < 0) {
            return;
        }
        const int atOnce = 1;
        setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &atOnce, sizeof(atOnce));
        const std::lock_guard lock(mutex_);
        sockets_.push_back(socket);
        servers_.push_back(newThread([this, socket] { serve(socket); }));
    }
}

void FaultServer::serve(int socket) {
    if (!place_.isProxy || giveTunnel(socket, place_.proxyStatus)) {
        std::unique_lock lock(mutex_);
        const auto context = context_;
        lock.unlock();
        const std::unique_ptr<SSL, decltype(&SSL_free)> tls(context ? SSL_new(context.get()) : nullptr,
                                                            &SSL_free);
        if (!tls) {
            std::array<char, 4096> hello{};
            static_cast<void>(read(socket, hello.data(), hello.size()));
        } else if (SSL_set_fd(tls.get(), socket) == 1 && SSL_accept(tls.get()) == 1) {
            while (answerOneRequest(tls.get(), socket)) {
            }
        }
    }
    shutdown(socket, SHUT_RDWR);
}

bool FaultServer::answerOneRequest(SSL* tls, int socket) {
    const auto request = readRequest(tls);
    if (request.empty()) {
        return false;
    }
    std::optional<Answer> answer;
    {
        const std::lock_guard lock(mutex_);
        if (!script_.empty()) {
            answer = std::move(script_.front());
            script_.pop_front();
        }
    }
    requests_.record(request);
    if (!answer) {
        // Silence, until the client goes away.
        return !readRequest(tls).empty();
    }
    for (bool first = true; const auto& piece : answer->pieces) {
        const bool isLater = !std::exchange(first, false);
        if (isLater && answer->pace) {
            answer->pace();
        }
        if (!piece.empty() && SSL_write(tls, piece.data(), static_cast<int>(piece.size())) <= 0) {
            return false;
        }
    }
    if (answer->ending == Answer::Ending::close) {
        SSL_shutdown(tls);
    } else if (answer->ending == Answer::Ending::reset) {
        reset(socket);
    }
    return answer->ending == Answer::Ending::keepOpen;
}

} // namespace quillet::testing
