#include "Gateway/RunningGateway.hpp"

#include <csignal>
#include <iterator>

namespace quillet::gateway {

namespace {

using GatewayServing = RunningGateway;

std::string textOf(const std::filesystem::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

TEST_F(GatewayServing, IsTrustedUnderAllItsNamesAndNoOther) {
    for (const auto host :
         {builtInIdentity().hosts[0], builtInIdentity().hosts[1], builtInIdentity().hosts[2],
          std::string_view("localhost"), std::string_view("127.0.0.1")}) {
        EXPECT_EQ(client.send(with(openRequest(41051), "Host", std::string(host))).status, 200) << host;
    }
    EXPECT_EQ(client.send(with(openRequest(41051), "Host", "elsewhere.example")).code,
              CURLE_PEER_FAILED_VERIFICATION);
    HttpsClient untrusting(port, "/etc/ssl/certs/ca-certificates.crt");
    EXPECT_NE(untrusting.send(openRequest(41051)).code, CURLE_OK);
}

TEST_F(GatewayServing, KeepsItsAuthorityAndAtAResetNothingElse) {
    ASSERT_EQ(client.send(associateRequest(41051, cartOf(41051))).status, 200);
    gateway.end(SIGKILL);
    const auto trusted = folder.path() / "trust.pem";
    GatewayProcess second({"--data", folder.path(), "--ca", trusted, "--reset"});
    EXPECT_EQ(HttpsClient(second.port(), trusted).send(associateRequest(41060, cartOf(41051))).status, 200);
    EXPECT_EQ(textOf(trusted), textOf(folder.path() / "ca.pem"));
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(folder.path() / "authority.pem").permissions(),
              perms::owner_read | perms::owner_write);
}

TEST_F(GatewayServing, LogsEachRequestAndNeverTheToken) {
    EXPECT_EQ(client.send(openRequest(41051)).status, 200);
    EXPECT_EQ(client.send(associateRequest(41051, "wh%20at")).status, 404);
    EXPECT_EQ(textOf(folder.path() / "gateway.log").find(goodToken()), std::string::npos);
    const auto log = readLog(folder.path() / "gateway.log");
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0]["path"], "/quillet-bff/consultants/CL/41051/sell-out-carts?status=OPEN");
    EXPECT_EQ(log[0]["headers"]["Consultant-Token"], goodToken().size());
    EXPECT_EQ(log[1]["status"], 404);
    EXPECT_EQ(log[1]["bytesIn"], 27);
    // Both went over one connection, kept open between them.
    EXPECT_EQ(log[0]["connection"], log[1]["connection"]);
}

TEST_F(GatewayServing, TurnsAwayWhatIsTooLargeAndGoesOn) {
    EXPECT_EQ(
        client.send(with(openRequest(41051), "Authorization-Provider", std::string(20'000, 'x'))).status,
        431);
    EXPECT_EQ(client.send(with(associateRequest(41051, ""), ":body", std::string(200'000, ' '))).status, 413);
    EXPECT_EQ(client.send(with(openRequest(41051), ":method", "G(E)T")).status, 400);
    EXPECT_EQ(client.send(openRequest(41051)).status, 200);
}

} // namespace quillet::gateway
