#pragma once

#include "Gateway/GatewayProcess.hpp"
#include "Gateway/HttpsClient.hpp"
#include "Gateway/Json.hpp"
#include "Gateway/Requests.hpp"
#include "Gateway/TemporaryFolder.hpp"

#include <chrono>
#include <fstream>
#include <thread>

#include <gmock/gmock.h>

namespace quillet::gateway {

/// A gateway that serves from a folder of its own, and a client that trusts it.
struct RunningGateway : testing::Test {
    [[nodiscard]] HttpsClient newClient() const { return {port, folder.path() / "ca.pem"}; }

    /// Runs an errand on the folder.
    void adjust(std::vector<std::string> options) const {
        options.insert(options.end(), {"--data", folder.path()});
        const auto ended = runGateway(options);
        ASSERT_EQ(ended.status, 0) << ended.output;
    }

    /// The lines of a log, each of which must be whole.
    [[nodiscard]] static std::vector<Json> readLog(const std::filesystem::path& file) {
        std::ifstream stream(file);
        std::vector<Json> lines;
        for (std::string line; std::getline(stream, line);) {
            lines.push_back(Json::parse(line));
        }
        return lines;
    }

    /// The same once it has as many lines, or after half a minute. A client may be gone before its request is
    /// read.
    [[nodiscard]] static std::vector<Json> awaitLog(const std::filesystem::path& file, std::size_t count) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        std::vector<Json> lines = readLog(file);
        while (lines.size() < count && std::chrono::steady_clock::now() < end) {
            std::this_thread::yield();
            lines = readLog(file);
        }
        return lines;
    }

    const TemporaryFolder folder;
    GatewayProcess gateway{{"--data", folder.path()}};
    const std::uint16_t port = gateway.port();
    HttpsClient client = newClient();
};

} // namespace quillet::gateway
