#include "Gateway/RunningGateway.hpp"

#include <QFile>

#include <csignal>

namespace quillet::gateway {

namespace {

using GatewayProgram = RunningGateway;

} // namespace

TEST_F(GatewayProgram, IsRefusedInOneClearLineOfErrors) {
    const std::string data = folder;
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
        GatewayProcess refused(arguments);
        EXPECT_EQ(refused.end(), status);
        const auto complaint = refused.readAllStandardError();
        EXPECT_THAT(complaint.toStdString(), ::testing::HasSubstr(message));
        EXPECT_EQ(complaint.indexOf('\n'), complaint.size() - 1);
    }
}

TEST_F(GatewayProgram, ListsItsOrders) {
    GatewayProcess listing({"--data", folder, "--list"});
    EXPECT_EQ(listing.end(), 0);
    const auto list = Json::parse(listing.readAll().toStdString());
    EXPECT_EQ(list.size(), 18u);
    EXPECT_EQ(list[1].dump(), R"({"title":"Some products are added","customer":"Camila Fuentes","message":)"
                              R"("Hola, este es mi pedido de este ciclo. ¿Me avisas cuando llegue?","cart":)"
                              R"("7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3","consultant":41052,"country":"CL",)"
                              R"("sentAt":"2026-03-14T12:00:00.000+0000"})");
}

TEST_F(GatewayProgram, TurnsAwayWhatIsTooLargeAndStopsWhenAskedTo) {
    const std::tuple<long, std::string, std::string> cases[] = {
        {431, "Authorization-Provider", std::string(20'000, 'x')},
        {413, ":body", std::string(200'000, ' ')},
        {400, ":method", "G(E)T"},
        {200, ":method", "GET"},
    };
    for (const auto& [status, part, value] : cases) {
        EXPECT_EQ(client.send(with(openRequest(41051), part, value)).status, status);
    }
    EXPECT_EQ(gateway.end(SIGINT), 0);
    EXPECT_EQ(gateway.readAll() + gateway.readAllStandardError(), "");
    EXPECT_EQ(GatewayProcess({"--data", folder, "--stop-with-stdin"}).end(), 0);
}

TEST_F(GatewayProgram, KeepsItsAuthorityAndAtAResetNothingElse) {
    ASSERT_EQ(client.send(associateRequest(41051, cartOf(41051))).status, 200);
    gateway.end(SIGKILL);
    GatewayProcess second({"--data", folder, "--ca", folder / "trust.pem", "--reset"});
    HttpsClient known(second.port(), folder / "ca.pem");
    EXPECT_EQ(known.send(associateRequest(41060, cartOf(41051))).status, 200);
    QFile old(folder / "ca.pem");
    QFile given(folder / "trust.pem");
    EXPECT_TRUE(old.open(QIODevice::ReadOnly) && given.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), given.readAll());
    EXPECT_EQ(QFile(folder / "authority.pem").permissions() & ~(QFile::ReadUser | QFile::WriteUser),
              QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace quillet::gateway
