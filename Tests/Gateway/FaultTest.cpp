#include "Gateway/GatewayProcess.hpp"
#include "Gateway/HttpsClient.hpp"
#include "Gateway/Json.hpp"
#include "Gateway/Requests.hpp"
#include "Gateway/TemporaryFolder.hpp"

#include <csignal>

#include <gmock/gmock.h>

namespace quillet::gateway {

namespace {

using namespace std::chrono_literals;

class GatewayFaults : public testing::Test {
protected:
    Ended errand(const std::string& option, const std::string& value) const {
        return runGateway({"--data", folder.path(), option, value});
    }
    std::vector<Json> log() const {
        std::vector<Json> entries;
        for (const auto& line : linesOf(folder.path() / "gateway.log")) {
            entries.push_back(Json::parse(line));
        }
        return entries;
    }

    TemporaryFolder folder;
    GatewayProcess gateway{{"--data", folder.path()}};
    std::uint16_t port = gateway.port();
    HttpsClient client{port, folder.path() / "ca.pem"};
};

// In both the TLS stream ends without close_notify, which libcurl 8.14 reports as a receive error and 7.88
// did not.
const testing::Matcher<CURLcode> isCut = testing::AnyOf(CURLE_PARTIAL_FILE, CURLE_RECV_ERROR);
const testing::Matcher<CURLcode> isClosed = testing::AnyOf(CURLE_GOT_NOTHING, CURLE_RECV_ERROR);

struct FaultCase {
    std::string fault;
    testing::Matcher<CURLcode> code;
    long status;
    /// The status in the log; -1 if there is no line.
    int logged;
    /// Whether the order is submitted afterwards.
    bool isSent;
};

const std::vector<FaultCase> faultCases{
    {"kind=delay value=30", CURLE_OK, 200, 200, true},
    {"kind=status value=503", CURLE_OK, 503, 503, false},
    {"kind=status value=404", CURLE_OK, 404, 404, false},
    {"kind=status value=302", CURLE_OK, 302, 302, false},
    {"kind=status value=204", CURLE_OK, 204, 204, false},
    {"kind=malformed", CURLE_OK, 200, 200, false},
    {"kind=malformed value=empty", CURLE_OK, 200, 200, false},
    {"kind=cut", isCut, 200, 200, true},
    {"kind=silence", CURLE_OPERATION_TIMEDOUT, 0, -1, false},
    {"kind=close", isClosed, 0, -1, true},
};

} // namespace

TEST_F(GatewayFaults, HappenOnTheWireAndAreLoggedOnce) {
    for (const auto& wanted : faultCases) {
        SCOPED_TRACE(wanted.fault);
        ASSERT_EQ(runGateway({"--data", folder.path(), "--reset", "--fault",
                              "consultant=41051 call=checkout times=1 " + wanted.fault})
                      .status,
                  0);
        ASSERT_EQ(client.send(associateRequest(41051, cartOf(41051))).status, 200);
        const auto before = log().size();
        const auto deadline = wanted.fault == "kind=silence" ? 300ms : 20s;
        // On a reused connection curl itself would repeat a POST that gets no answer.
        const auto exchange =
            HttpsClient(port, folder.path() / "ca.pem").send(checkoutRequest(41051), deadline);
        EXPECT_THAT(exchange.code, wanted.code) << curl_easy_strerror(exchange.code);
        EXPECT_EQ(exchange.status, wanted.status);

        const auto entries = log();
        ASSERT_EQ(entries.size(), before + 1);
        EXPECT_EQ(entries.back()["method"], "POST");
        EXPECT_EQ(entries.back()["status"], wanted.logged < 0 ? Json() : Json(wanted.logged));
        EXPECT_EQ(entries.back()["consultant"], 41051);
        // The fault is used up. The order's state now tells whether the request was carried out.
        EXPECT_EQ(client.send(checkoutRequest(41051)).status, wanted.isSent ? 400 : 200);
    }
}

TEST_F(GatewayFaults, SpoilTheBodyTheyAreAskedTo) {
    const std::vector<std::pair<std::string, std::string>> bodies{{"", "{\"consultant\":{\"id\""},
                                                                  {" value=null", "null"},
                                                                  {" value=shape", "{\"result\""},
                                                                  {" value=html", "<!DOCTYPE"}};
    for (const auto& [value, start] : bodies) {
        ASSERT_EQ(errand("--fault", "consultant=41051 call=open kind=malformed" + value).status, 0);
        EXPECT_TRUE(client.send(openRequest(41051)).body.starts_with(start)) << value;
    }
    ASSERT_EQ(errand("--fault", "consultant=41051 call=open kind=none").status, 0);
    EXPECT_TRUE(Json::accept(client.send(openRequest(41051)).body));
}

TEST_F(GatewayFaults, AreSeededForEachOutcome) {
    const auto associated = [&](std::uint64_t consultant) {
        return client.send(associateRequest(consultant, cartOf(consultant))).status;
    };
    EXPECT_EQ(associated(41055), 504);
    EXPECT_EQ(associated(41055), 504);
    EXPECT_EQ(associated(41056), 500);
    EXPECT_EQ(associated(41064), 200);
    EXPECT_EQ(client.send(openRequest(41064)).status, 500);
    EXPECT_EQ(associated(41066), 504);
    EXPECT_EQ(associated(41066), 200);
    EXPECT_EQ(associated(41065), 200);
    EXPECT_EQ(client.send(checkoutRequest(41065)).status, 500);
    EXPECT_EQ(client.send(checkoutRequest(41065)).status, 200);
    EXPECT_FALSE(Json::accept(client.send(associateRequest(41059, cartOf(41059))).body));
    EXPECT_FALSE(Json::accept(client.send(checkoutRequest(41060)).body));
    EXPECT_EQ(associated(41061), 200);
    EXPECT_THAT(client.send(checkoutRequest(41061)).code, isCut);
    EXPECT_EQ(client.send(checkoutRequest(41062), 300ms).code, CURLE_OPERATION_TIMEDOUT);
    EXPECT_THAT(HttpsClient(port, folder.path() / "ca.pem").send(checkoutRequest(41063)).code, isClosed);
}

TEST_F(GatewayFaults, DoNotStandInTheWayOfStopping) {
    // One client in a silence fault, one in a long delay, one with only a TCP connection, and one idle.
    ASSERT_EQ(errand("--fault", "consultant=41051 call=open kind=delay value=600000").status, 0);
    HttpsClient delayed(port, folder.path() / "ca.pem");
    EXPECT_EQ(client.send(checkoutRequest(41062), 300ms).code, CURLE_OPERATION_TIMEDOUT);
    EXPECT_EQ(delayed.send(openRequest(41051), 300ms).code, CURLE_OPERATION_TIMEDOUT);
    HttpsClient idle(port, folder.path() / "ca.pem");
    EXPECT_EQ(idle.send(openRequest(41052)).status, 200);
    gateway.signal(SIGTERM);
    EXPECT_EQ(gateway.wait().status, 0);
}

} // namespace quillet::gateway
