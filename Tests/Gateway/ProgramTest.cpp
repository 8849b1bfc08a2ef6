#include "Gateway/RunningGateway.hpp"

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
    const std::tuple<std::vector<std::string>, int, std::string> cases[] = {
        {{}, 2, "--data DIR is needed"},
        {{"--nonsense"}, 2, "unknown option --nonsense"},
        {{"extra"}, 2, "unexpected argument extra"},
        {{"--port", "65536"}, 2, "--port needs a number from 0 to 65535, not \"65536\""},
        {{"--quota", "70412@=3"}, 2, "does not understand"},
        {{"--fault", "consultant=41051 call=open kind=status value=99"}, 2, "from 200 to 599"},
        {{"--fault", "consultant=41051 call=open kind=cut times=0"}, 2, "1 or more"},
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
    const std::tuple<int, std::string, std::string> cases[] = {
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
    const auto itsPort = second.port();
    for (const auto* const trusted : {"ca.pem", "trust.pem"}) {
        const HttpsClient other{itsPort, folder / trusted};
        EXPECT_EQ(other.ask(associateRequest(41060, cartOf(41051))), "200 OPEN") << trusted;
    }
    EXPECT_EQ(std::filesystem::status(folder / "authority.pem").permissions(), std::filesystem::perms(0600));
}

TEST_F(GatewayProgram, FailsOnTheWireAsItIsToldToAndLogsItOnce) {
    // The status and the beginning of the body; then whether that is JSON, whether it stands in the log as
    // answered, and whether the order is submitted afterwards.
    const std::tuple<std::string, int, std::string, bool, bool, bool> cases[] = {
        {"delay value=0", 200, R"({"submittedOrderId":)", true, true, true},
        {"status value=503", 503, R"({"error":{"response":)", true, true, false},
        {"status value=404", 404, R"({"details":"This failure)", true, true, false},
        {"status value=302", 302, "{}", true, true, false},
        {"status value=204", 204, "", false, true, false},
        {"malformed", 200, R"({"consultant":{"id":)", false, true, false},
        {"malformed value=empty", 200, "", false, true, false},
        {"malformed value=null", 200, "null", true, true, false},
        {"malformed value=shape", 200, R"({"result":"ok",)", true, true, false},
        {"malformed value=html", 200, "<!DOCTYPE html>", false, true, false},
        {"cut", 200, R"({"submittedOrderId":)", false, true, true},
        {"silence", 0, "", false, false, false},
        {"close", 0, "", false, false, true},
    };
    std::size_t lines = 0;
    for (const auto& [kind, status, body, isJson, isAnswered, isSent] : cases) {
        SCOPED_TRACE(kind);
        adjust({"--reset", "--fault", "consultant=41051 call=checkout times=1 kind=" + kind});
        ASSERT_EQ(client.send(associateRequest(41051, cartOf(41051))).status, 200);
        const auto exchange = client.send(checkoutRequest(41051), kind == "silence" ? 300 : 20'000);
        EXPECT_EQ(exchange.isTimedOut, kind == "silence");
        EXPECT_EQ(exchange.status, status);
        EXPECT_EQ(exchange.body.substr(0, body.size()), body);
        EXPECT_EQ(exchange.body.empty(), body.empty());
        EXPECT_EQ(Json::accept(exchange.body), isJson);

        const auto log = readLog(folder, lines + 2);
        ASSERT_EQ(log.size(), lines + 2);
        EXPECT_EQ(log.back()["method"], "POST");
        EXPECT_EQ(log.back()["path"], "/quillet-bff/consultants/CL/41051/sell-out-carts/checkout");
        EXPECT_EQ(log.back()["headers"]["Consultant-Token"], goodToken().size());
        EXPECT_EQ(log.back()["status"], isAnswered ? Json(status) : Json());
        EXPECT_EQ(log.back()["fault"], kind.substr(0, kind.find(' ')));
        EXPECT_EQ(log.back()["consultant"], 41051);
        // The fault is used up. The order's state now tells whether the request was carried out.
        EXPECT_EQ(client.send(checkoutRequest(41051)).status, isSent ? 400 : 200);
        lines += 3;
    }
    EXPECT_EQ(readLog(folder)[0]["bytesIn"], 27);
}

TEST_F(GatewayProgram, KeepsAConnectionOpenForTheNextRequest) {
    EXPECT_EQ(client.send(openRequest(41051), 20'000, 2).status, 200);
    const auto log = readLog(folder, 2);
    EXPECT_EQ(log[0]["connection"], log[1]["connection"]);
}

TEST_F(GatewayProgram, StopsWhateverItsClientsWaitFor) {
    // One client in a silence fault, one in a long delay, one with a TCP connection only; another's fault was
    // taken away.
    adjust({"--fault", "consultant=41051 call=open kind=delay value=600000", "--fault",
            "consultant=41052 call=open kind=status value=500", "--fault",
            "consultant=41052 call=open kind=none"});
    EXPECT_TRUE(client.send(checkoutRequest(41062), 300).isTimedOut);
    EXPECT_TRUE(client.send(openRequest(41051), 300).isTimedOut);
    EXPECT_EQ(client.send(openRequest(41052)).status, 200);
    QTcpSocket connected;
    connected.connectToHost(QHostAddress::LocalHost, port);
    EXPECT_TRUE(connected.waitForConnected());
    EXPECT_EQ(gateway.end(SIGTERM), 0);
}

} // namespace quillet::gateway
