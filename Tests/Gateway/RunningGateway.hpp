#pragma once

#include "Gateway/Json.hpp"
#include "Gateway/Requests.hpp"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest/qtestsystem.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <curl/curl.h>
#include <gmock/gmock.h>

namespace quillet::gateway {

/// The program as a child process, whose standard input has ended. The destructor kills it if it still runs.
struct GatewayProcess : QProcess {
    /// `launcher` is a command that is followed by the program and its arguments.
    explicit GatewayProcess(const std::vector<std::string>& arguments, QStringList launcher = {}) {
        launcher << QUILLET_GATEWAY_PROGRAM;
        for (const auto& argument : arguments) {
            launcher << QString::fromStdString(argument);
        }
        setStandardInputFile(nullDevice());
        start(launcher.takeFirst(), launcher);
    }
    ~GatewayProcess() override { end(SIGKILL); }

    /// Waits for the line with the port; 0 if the program ended without one.
    std::uint16_t port() {
        while (!canReadLine() && waitForReadyRead()) {
        }
        return readLine().trimmed().split(':').last().toUShort();
    }

    /// Sends a signal, if there is one, and waits for the end. Death by a signal is the status -1.
    int end(int signal = 0) {
        if (state() != NotRunning) {
            ::kill(static_cast<pid_t>(processId()), signal);
        }
        waitForFinished();
        return exitStatus() == NormalExit ? exitCode() : -1;
    }
};

/// The outcome of an exchange.
struct Exchange {
    CURLcode code = CURLE_OK;
    long status = 0;
    std::string body;
};

/// Sends requests over HTTPS to a port of 127.0.0.1, and trusts one authority. Consecutive requests share a
/// connection if the server keeps it open.
class HttpsClient {
public:
    HttpsClient(std::uint16_t port, const std::filesystem::path& authority)
        : address_("://127.0.0.1:" + std::to_string(port)) {
        set(CURLOPT_CAINFO, authority.c_str());
        set(CURLOPT_PATH_AS_IS, 1L);
        set(CURLOPT_PROXY, "");
        set(CURLOPT_NOSIGNAL, 1L);
        set(
            CURLOPT_WRITEFUNCTION, +[](char* data, std::size_t size, std::size_t count, void* body) {
                static_cast<std::string*>(body)->append(data, size * count);
                return size * count;
            });
    }

    Exchange send(const Request& request, std::chrono::milliseconds deadline = std::chrono::seconds(20)) {
        curl_slist* headers = nullptr;
        for (const auto& [name, value] : request.headers) {
            headers = curl_slist_append(headers, (name + ": " + value).c_str());
        }
        Exchange exchange;
        set(CURLOPT_URL, ("https" + address_ + request.target).c_str());
        set(CURLOPT_HTTPHEADER, headers);
        set(CURLOPT_TIMEOUT_MS, static_cast<long>(deadline.count()));
        set(CURLOPT_WRITEDATA, &exchange.body);
        set(CURLOPT_HTTPGET, 1L);
        if (!request.body.empty()) {
            set(CURLOPT_COPYPOSTFIELDS, request.body.c_str());
        }
        set(CURLOPT_CUSTOMREQUEST, request.method.c_str());
        exchange.code = curl_easy_perform(curl_.get());
        curl_easy_getinfo(curl_.get(), CURLINFO_RESPONSE_CODE, &exchange.status);
        curl_slist_free_all(headers);
        return exchange;
    }

    /// What the answer tells.
    std::string ask(const Request& request) {
        const auto exchange = send(request);
        return told(exchange.status, exchange.body);
    }

    /// Connects, up to the end of the TLS handshake or without one, and says nothing.
    CURLcode connect(bool withTls) {
        set(CURLOPT_URL, ((withTls ? "https" : "http") + address_).c_str());
        set(CURLOPT_CONNECT_ONLY, 1L);
        return curl_easy_perform(curl_.get());
    }

private:
    void set(CURLoption option, auto value) { curl_easy_setopt(curl_.get(), option, value); }

    std::string address_;
    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> curl_{curl_easy_init(), &curl_easy_cleanup};
};

/// A gateway that serves from a folder of its own, and a client that trusts it.
struct RunningGateway : ::testing::Test {
    [[nodiscard]] HttpsClient newClient() const { return {port, folder / "ca.pem"}; }

    /// Runs an errand on the folder.
    void adjust(std::vector<std::string> options) const {
        options.insert(options.end(), {"--data", folder});
        ASSERT_EQ(GatewayProcess(options).end(), 0);
    }

    /// The lines of the folder's log, each of which must be whole, once there are as many. A client may be
    /// gone before its request is read.
    [[nodiscard]] static std::vector<Json> readLog(const std::filesystem::path& folder,
                                                   std::size_t count = 0) {
        std::vector<Json> lines;
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                lines.clear();
                std::ifstream stream(folder / "gateway.log");
                for (std::string line; std::getline(stream, line);) {
                    lines.push_back(Json::parse(line));
                }
                return lines.size() >= count;
            },
            30'000));
        return lines;
    }

    const QTemporaryDir temporary;
    const std::filesystem::path folder = temporary.path().toStdString();
    GatewayProcess gateway{{"--data", folder}};
    const std::uint16_t port = gateway.port();
    HttpsClient client = newClient();
};

} // namespace quillet::gateway
