#include "Gateway/RunningGateway.hpp"

#include <csignal>

namespace quillet::gateway {

namespace {

using namespace std::chrono_literals;

using GatewayFaults = RunningGateway;

// In both the TLS stream ends without close_notify, which libcurl 8.14 reports as a receive error and 7.88
// did not.
const ::testing::Matcher<CURLcode> isCut = ::testing::AnyOf(CURLE_PARTIAL_FILE, CURLE_RECV_ERROR);
const ::testing::Matcher<CURLcode> isClosed = ::testing::AnyOf(CURLE_GOT_NOTHING, CURLE_RECV_ERROR);

} // namespace

TEST_F(GatewayFaults, HappenOnTheWireAndAreLoggedOnce) {
    const struct {
        std::string kind;
        ::testing::Matcher<CURLcode> code;
        long status;
        std::string body;
        // Whether it stands in the log as answered, and whether the order is submitted afterwards.
        bool isAnswered;
        bool isSent;
    } cases[] = {
        {"delay value=0", CURLE_OK, 200, R"({"submittedOrderId":)", true, true},
        {"status value=503", CURLE_OK, 503, R"({"error":{"response":)", true, false},
        {"status value=404", CURLE_OK, 404, R"({"details":"This failure)", true, false},
        {"status value=302", CURLE_OK, 302, "{}", true, false},
        {"status value=204", CURLE_OK, 204, "", true, false},
        {"malformed", CURLE_OK, 200, R"({"consultant":{"id":)", true, false},
        {"malformed value=empty", CURLE_OK, 200, "", true, false},
        {"malformed value=null", CURLE_OK, 200, "null", true, false},
        {"malformed value=shape", CURLE_OK, 200, R"({"result":"ok",)", true, false},
        {"malformed value=html", CURLE_OK, 200, "<!DOCTYPE html>", true, false},
        {"cut", isCut, 200, R"({"submittedOrderId":)", true, true},
        {"silence", CURLE_OPERATION_TIMEDOUT, 0, "", false, false},
        {"close", isClosed, 0, "", false, true},
    };
    std::size_t lines = 0;
    for (const auto& [kind, code, status, body, isAnswered, isSent] : cases) {
        SCOPED_TRACE(kind);
        adjust({"--reset", "--fault", "consultant=41051 call=checkout times=1 kind=" + kind});
        ASSERT_EQ(client.send(associateRequest(41051, cartOf(41051))).status, 200);
        // On a reused connection curl itself would repeat a POST that is closed; for silence alone the time
        // of connecting must not count.
        const auto exchange = kind == "silence" ? client.send(checkoutRequest(41051), 300ms)
                                                : newClient().send(checkoutRequest(41051));
        EXPECT_THAT(exchange.code, code) << curl_easy_strerror(exchange.code);
        EXPECT_EQ(exchange.status, status);
        EXPECT_EQ(exchange.body.substr(0, body.size()), body);
        EXPECT_EQ(exchange.body.empty(), body.empty());

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
    const auto log = readLog(folder);
    EXPECT_EQ(log[0]["bytesIn"], 27);
    // The two went over one connection, kept open between them.
    EXPECT_EQ(log[0]["connection"], log[2]["connection"]);
}

TEST_F(GatewayFaults, DoNotStandInTheWayOfStopping) {
    // One client in a silence fault, one in a long delay, one with a TCP connection only, and one idle after
    // a fault that was taken away.
    adjust({"--fault", "consultant=41051 call=open kind=delay value=600000", "--fault",
            "consultant=41052 call=open kind=cut", "--fault", "consultant=41052 call=open kind=none"});
    auto delayed = newClient();
    EXPECT_EQ(client.send(checkoutRequest(41062), 300ms).code, CURLE_OPERATION_TIMEDOUT);
    EXPECT_EQ(delayed.send(openRequest(41051), 300ms).code, CURLE_OPERATION_TIMEDOUT);
    auto connected = newClient();
    EXPECT_EQ(connected.connect(false), CURLE_OK);
    auto idle = newClient();
    EXPECT_EQ(idle.send(openRequest(41052)).status, 200);
    EXPECT_EQ(gateway.end(SIGTERM), 0);
}

} // namespace quillet::gateway
