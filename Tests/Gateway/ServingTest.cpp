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

TEST_F(GatewayServing, TurnsAwayWhatIsTooLargeAndGoesOn) {
    const std::tuple<long, std::string, std::string> cases[] = {
        {431, "Authorization-Provider", std::string(20'000, 'x')},
        {413, ":body", std::string(200'000, ' ')},
        {400, ":method", "G(E)T"},
        {200, ":method", "GET"},
    };
    for (const auto& [status, part, value] : cases) {
        EXPECT_EQ(client.send(with(openRequest(41051), part, value)).status, status);
    }
}

} // namespace quillet::gateway
