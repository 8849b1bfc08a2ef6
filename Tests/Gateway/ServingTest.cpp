#include "Gateway/GatewayProcess.hpp"
#include "Gateway/HttpsClient.hpp"
#include "Gateway/Json.hpp"
#include "Gateway/Requests.hpp"
#include "Gateway/TemporaryFolder.hpp"

#include <csignal>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

namespace quillet::gateway {

namespace {

std::string textOf(const std::filesystem::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

TEST(GatewayServing, IsTrustedUnderAllItsNamesAndNoOther) {
    const TemporaryFolder folder;
    const TemporaryFolder elsewhere;
    const auto ca = elsewhere.path() / "trust.pem";
    GatewayProcess gateway({"--data", folder.path(), "--ca", ca});
    HttpsClient client(gateway.port(), ca);
    std::vector<std::string> hosts(builtInIdentity().hosts.begin(), builtInIdentity().hosts.end());
    hosts.insert(hosts.end(), {"localhost", "127.0.0.1"});
    for (const auto& host : hosts) {
        auto request = openRequest(41051);
        setHeader(request, "Host", host);
        EXPECT_EQ(client.send(request).status, 200) << host;
    }
    auto stranger = openRequest(41051);
    setHeader(stranger, "Host", "elsewhere.example");
    EXPECT_EQ(client.send(stranger).code, CURLE_PEER_FAILED_VERIFICATION);
    HttpsClient untrusting(gateway.port(), "/etc/ssl/certs/ca-certificates.crt");
    EXPECT_NE(untrusting.send(openRequest(41051)).code, CURLE_OK);
}

TEST(GatewayServing, KeepsWhatWasSentAndItsAuthorityAcrossARestart) {
    const TemporaryFolder folder;
    const auto ca = folder.path() / "ca.pem";
    {
        GatewayProcess gateway({"--data", folder.path()});
        HttpsClient client(gateway.port(), ca);
        ASSERT_EQ(client.send(associateRequest(41051, cartOf(41051))).status, 200);
        ASSERT_EQ(client.send(checkoutRequest(41051)).status, 200);
        gateway.signal(SIGKILL);
    }
    const auto authority = textOf(ca);
    std::filesystem::remove(ca);
    {
        GatewayProcess gateway({"--data", folder.path()});
        HttpsClient client(gateway.port(), ca);
        EXPECT_EQ(client.send(associateRequest(41051, cartOf(41051))).status, 422);
        EXPECT_EQ(client.send(checkoutRequest(41051)).status, 400);
    }
    EXPECT_EQ(textOf(ca), authority);
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(folder.path() / "authority.pem").permissions(),
              perms::owner_read | perms::owner_write);
    GatewayProcess gateway({"--data", folder.path(), "--reset"});
    HttpsClient client(gateway.port(), ca);
    EXPECT_EQ(client.send(associateRequest(41051, cartOf(41051))).status, 200);
}

TEST(GatewayServing, LogsEachRequestAndNeverTheToken) {
    const TemporaryFolder folder;
    const auto log = folder.path() / "requests.jsonl";
    GatewayProcess gateway({"--data", folder.path(), "--log", log});
    HttpsClient client(gateway.port(), folder.path() / "ca.pem");
    EXPECT_EQ(client.send(openRequest(41051)).status, 200);
    EXPECT_EQ(client.send(associateRequest(41051, "wh%20at")).status, 404);
    const auto lines = linesOf(log);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(textOf(log).find(goodToken()), std::string::npos);
    const auto first = Json::parse(lines[0]);
    const auto second = Json::parse(lines[1]);
    EXPECT_EQ(first["path"], "/quillet-bff/consultants/CL/41051/sell-out-carts?status=OPEN");
    EXPECT_EQ(first["headers"]["Consultant-Token"], goodToken().size());
    EXPECT_EQ(second["status"], 404);
    EXPECT_EQ(second["bytesIn"], 27);
    // Both went over one connection, kept open between them.
    EXPECT_EQ(first["connection"], second["connection"]);
}

TEST(GatewayServing, TurnsAwayWhatIsTooLargeAndGoesOn) {
    const TemporaryFolder folder;
    GatewayProcess gateway({"--data", folder.path()});
    HttpsClient client(gateway.port(), folder.path() / "ca.pem");
    auto largeHeader = openRequest(41051);
    setHeader(largeHeader, "Authorization-Provider", std::string(20'000, 'x'));
    EXPECT_EQ(client.send(largeHeader).status, 431);
    auto largeBody = associateRequest(41051, cartOf(41051));
    largeBody.body += std::string(200'000, ' ');
    EXPECT_EQ(client.send(largeBody).status, 413);
    auto notHttp = openRequest(41051);
    notHttp.method = "G(E)T";
    EXPECT_EQ(client.send(notHttp).status, 400);
    EXPECT_EQ(client.send(openRequest(41051)).status, 200);
}

} // namespace quillet::gateway
