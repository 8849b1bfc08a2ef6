#include "Gateway/RunningGateway.hpp"

#include <csignal>
#include <iterator>

namespace quillet::gateway {

namespace {

using GatewayProgram = RunningGateway;

std::string textOf(const std::filesystem::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

TEST_F(GatewayProgram, IsRefusedInOneClearLineOfErrors) {
    const std::string data = folder.path();
    const auto taken = std::to_string(port);
    std::filesystem::create_directories(data + "/text/key");
    std::ofstream(data + "/text/gateway.sqlite") << std::string(5000, 'x');
    std::ofstream(data + "/text/key/authority.pem") << "no key\n";
    const struct {
        std::vector<std::string> arguments;
        int status;
        std::string message;
    } cases[] = {
        {{}, 2, "--data DIR is needed"},
        {{"--nonsense"}, 2, "unknown option --nonsense"},
        {{"extra"}, 2, "unexpected argument extra"},
        {{"--port", "65536"}, 2, "--port needs a number from 0 to 65535, not \"65536\""},
        {{"--quota", "70412@=3"}, 2, "does not understand"},
        {{"--fault", "consultant=41051 call=open kind=status value=99"}, 2, "from 200 to 599"},
        {{"--fault", "consultant=41051 call=open kind=cut times=0"}, 2, "1 or more"},
        {{"--fault", "consultant=41051 call=open kind=cut colour=red"}, 2, "colour"},
        {{"--data", data, "--port", taken}, 1, "cannot listen on 127.0.0.1:" + taken},
        {{"--data", data + "/text"}, 1, "not a database"},
        {{"--data", data + "/text/key"}, 1, "it does not hold a key and its certificate"},
        {{"--data", data, "--log", data}, 1, "cannot write the log " + data},
        {{"--data", data, "--ca", data + "/no/ca.pem"}, 1, "cannot write " + data + "/no/ca.pem"},
        {{"--data", data, "--stock", "1=1"}, 1, "there is no product 1"},
        {{"--data", data, "--fault", "consultant=1 call=open kind=cut"}, 1, "there is no consultant 1"},
    };
    for (const auto& [arguments, status, message] : cases) {
        SCOPED_TRACE(message);
        const auto ended = runGateway(arguments, "2>&1 >/dev/null");
        EXPECT_EQ(ended.status, status);
        EXPECT_THAT(ended.output, testing::HasSubstr(message));
        EXPECT_EQ(ended.output.find('\n'), ended.output.size() - 1);
    }
}

TEST_F(GatewayProgram, TellsAboutItself) {
    EXPECT_THAT(runGateway({"--help"}).output, testing::HasSubstr("--stop-with-stdin"));
    EXPECT_THAT(runGateway({"--version"}).output, testing::MatchesRegex("quillet-gateway [0-9.]+\n"));
    const auto list = Json::parse(runGateway({"--data", folder.path(), "--list"}).output);
    EXPECT_EQ(list.size(), 18u);
    EXPECT_EQ(list[1].dump(), R"({"title":"Some products are added","customer":"Camila Fuentes","message":)"
                              R"("Hola, este es mi pedido de este ciclo. ¿Me avisas cuando llegue?","cart":)"
                              R"("7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3","consultant":41052,"country":"CL",)"
                              R"("sentAt":"2026-03-14T12:00:00.000+0000"})");
}

TEST_F(GatewayProgram, StopsWhenAskedToInEachWay) {
    EXPECT_EQ(runGateway({"--data", folder.path(), "--stop-with-stdin"}).status, 0);
    EXPECT_EQ(client.send(openRequest(41051)).status, 200);
    const auto ended = gateway.end(SIGINT);
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.output, "");
}

TEST_F(GatewayProgram, IsTrustedUnderAllItsNamesAndNoOther) {
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

TEST_F(GatewayProgram, KeepsItsAuthorityAndAtAResetNothingElse) {
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

TEST_F(GatewayProgram, TurnsAwayWhatIsTooLargeAndGoesOn) {
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
