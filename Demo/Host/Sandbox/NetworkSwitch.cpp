#include "Sandbox/NetworkSwitch.hpp"
#include "Platform/Http/SystemNetworkPathMonitor.hpp"

#include <QTcpServer>
#include <QTcpSocket>

namespace demo {

namespace {

void passOn(QTcpSocket& from, QTcpSocket& to) {
    QObject::connect(&from, &QTcpSocket::readyRead, &to, [&from, &to] { to.write(from.readAll()); });
    // Data received before is still forwarded.
    QObject::connect(&from, &QTcpSocket::disconnected, &to, &QTcpSocket::disconnectFromHost);
}

// Both sockets of a connection are freed when the module closes its end, or with the server.
void connectTo(const GatewayAddress& gateway, QTcpSocket* module) {
    auto* const far = new QTcpSocket(module);
    passOn(*module, *far);
    passOn(*far, *module);
    QObject::connect(far, &QTcpSocket::errorOccurred, module, &QTcpSocket::disconnectFromHost);
    QObject::connect(module, &QTcpSocket::disconnected, module, &QObject::deleteLater);
    far->connectToHost(gateway.host, gateway.port);
}

} // namespace

NetworkSwitch::NetworkSwitch(const GatewayAddress& gateway)
    : gateway_(gateway), server_(std::make_unique<QTcpServer>()) {
    QTcpServer* const server = server_.get();
    QObject::connect(server, &QTcpServer::newConnection, server, [this, server] {
        while (QTcpSocket* const module = server->nextPendingConnection()) {
            connectTo(gateway_, module);
        }
    });
    server->listen(QHostAddress::LocalHost);
    address_ = {server->serverAddress().toString(), server->serverPort(), gateway.caFile};
    server->moveToThread(&thread_);
    thread_.start();
}

NetworkSwitch::~NetworkSwitch() {
    QMetaObject::invokeMethod(
        server_.get(), [this] { server_.reset(); }, Qt::BlockingQueuedConnection);
    thread_.quit();
    thread_.wait();
}

void NetworkSwitch::setOn(bool on) {
    if (isOn_.exchange(on) == on) {
        return;
    }
    const auto change = [this, on] {
        if (on) {
            server_->listen(QHostAddress(address_.host), address_.port);
            return;
        }
        server_->close();
        qDeleteAll(server_->findChildren<QTcpSocket*>(Qt::FindDirectChildrenOnly));
    };
    QMetaObject::invokeMethod(server_.get(), change, Qt::BlockingQueuedConnection);
}

bool NetworkSwitch::isSatisfied(const std::string& host, bool isMapped) const {
    return isOn_ && quillet::platform::SystemNetworkPathMonitor().isSatisfied(host, isMapped);
}

} // namespace demo
