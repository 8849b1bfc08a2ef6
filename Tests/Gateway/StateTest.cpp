#include "Gateway/Adjustment.hpp"
#include "Gateway/Requests.hpp"
#include "Gateway/Router.hpp"
#include "Gateway/Store.hpp"

#include <QTemporaryDir>

#include <algorithm>
#include <thread>

#include <gmock/gmock.h>

namespace quillet::gateway {

namespace {

struct GatewayState : ::testing::Test {
    [[nodiscard]] Json ask(const Request& request) const {
        return Json::parse(router.handle(request).reply.body);
    }
    [[nodiscard]] std::string told(const Request& request) const {
        const auto reply = router.handle(request).reply;
        return gateway::told(reply.status, reply.body);
    }
    [[nodiscard]] std::string associate(std::uint64_t consultant, std::uint64_t owner) const {
        return told(associateRequest(consultant, cartOf(owner)));
    }
    [[nodiscard]] std::string checkOut(std::uint64_t consultant) const {
        return told(checkoutRequest(consultant));
    }
    void adjust(const std::expected<Adjustment, std::string>& adjustment) {
        ASSERT_TRUE(apply(database, *adjustment));
    }
    std::int64_t stock(std::int64_t product) {
        auto row = database.query("SELECT stock FROM catalogue WHERE code = ?", product);
        return row.next() ? row.integer(0) : -1;
    }

    const QTemporaryDir folder;
    Database database = openStore(folder.path().toStdString());
    Router router{folder.path().toStdString()};
};

constexpr auto sent = "200 CART_SUBMITTED_SUCCESS, 70412 OK, 81190 OK";
constexpr auto nothingToSend = "400 CART_SUBMITTED_ERROR";

} // namespace

TEST_F(GatewayState, CountsWhatIsSentAndWhatIsNot) {
    const auto associated = ask(associateRequest(41052, cartOf(41052)));
    EXPECT_EQ(associated["consultant"]["cycle"]["code"], 202605);
    const auto& cart = associated["cart"];
    EXPECT_EQ(cart["totalPoints"], 86);
    EXPECT_EQ(cart["totalItems"], 13);
    EXPECT_EQ(cart["cartTotal"].dump(), "106370");
    EXPECT_EQ(cart["regularItems"][1].dump(),
              R"({"productCode":90318,"origin":"MAGAZINE","productDescription":"Labial mate Arcilla rosada",)"
              R"("unitPoints":6,"totalPoints":18,"totalPrice":19470,"totalProfit":5841,"choosable":false,)"
              R"("amount":3,"magazineAmount":3,"unitPrice":6490,"unitProfit":1947,)"
              R"("imageUrl":"https://images.quillet.example/products/90318.png","isKit":false})");

    auto answer = ask(checkoutRequest(41052));
    EXPECT_EQ(answer["message"], "CART_SUBMITTED_PARTIAL_SUCCESS");
    EXPECT_EQ(answer["summary"].dump(),
              R"({"allItems":18,"errorItems":15,"addedItems":3,"allPoints":120,"addedPoints":62,)"
              R"("addedProducts":2,"errorProducts":2})");
    EXPECT_EQ(answer["products"][0].dump(),
              R"({"productCode":70412,"description":"Crema de manos Brisa de almendra 75 ml","status":"OK",)"
              R"("quantity":2,"totalPrice":17980,"unitPoints":12,"totalPoints":24})");
    // Points given per pack have no points per unit.
    EXPECT_FALSE(answer["products"][3].contains("unitPoints"));
    EXPECT_EQ(answer["products"][3]["totalPoints"], 40);
    EXPECT_EQ(stock(70412), 498);
    EXPECT_EQ(stock(61204), 400);
    // The two carts of the next cycle are still waiting for it.
    EXPECT_EQ(told(openRequest(41052)), "200, 300352, 300452");
}

TEST_F(GatewayState, DecidesAProductsStatusByCatalogueStockAndQuota) {
    const auto cart = ask(associateRequest(41068, cartOf(41068)))["cart"];
    EXPECT_EQ(cart["totalItems"], 18);
    EXPECT_EQ(cart["benefitItems"][0]["origin"], "BENEFIT");
    // The lipstick changes from unavailable to added and the cream the other way round; the shampoo has a
    // quota for one consultant.
    adjust(parseStock("90318=4"));
    adjust(parseStock("70412=0"));
    adjust(parseQuota("61204@41068=9"));
    adjust(parseQuota("10005=1"));
    EXPECT_EQ(checkOut(41068), "200 CART_SUBMITTED_PARTIAL_SUCCESS, 70412 UNAVAILABLE, 90318 OK, 61204 OK, "
                               "88210 NOT_FOUND, 10005 QUANTITY_ERROR");
    EXPECT_EQ(stock(90318), 0);
}

TEST_F(GatewayState, SendsACartOnceAndCountsItAgainstTheQuota) {
    adjust(parseQuota("70412=3"));
    EXPECT_EQ(told(associateRequest(41051, "%34" + cartOf(41051).substr(1))), "200 OPEN");
    EXPECT_EQ(associate(41060, 41051), "422 ERROR_CART_OTHER_CONSULTANT");
    EXPECT_EQ(associate(41051, 41051), "200 OPEN");
    EXPECT_EQ(checkOut(41051), sent);
    EXPECT_EQ(told(openRequest(41051)), "200");
    EXPECT_EQ(checkOut(41051), nothingToSend);
    EXPECT_EQ(associate(41051, 41051), "422 ERROR_CART_ALREADY_SUBMITTED");
    EXPECT_EQ(associate(41051, 41060), "200 OPEN");
    EXPECT_EQ(checkOut(41051), "200 CART_SUBMITTED_PARTIAL_SUCCESS, 70412 QUANTITY_ERROR, 81190 OK");
    // What one consultant sent does not count against another's.
    EXPECT_EQ(associate(41066, 41061), "504 ERROR_ON_REQUEST");
    EXPECT_EQ(associate(41066, 41061), "200 OPEN");
    EXPECT_EQ(checkOut(41066), sent);
}

TEST_F(GatewayState, LeavesEverythingAsItWasWhenNothingCanBeSent) {
    EXPECT_EQ(associate(41053, 41053), "200 OPEN");
    EXPECT_EQ(checkOut(41053), "422 CART_SUBMITTED_ERROR, 90318 UNAVAILABLE, 61204 QUANTITY_ERROR");
    EXPECT_EQ(told(openRequest(41053)), "200, 300053");
    adjust(parseStock("90318=3"));
    EXPECT_EQ(checkOut(41053), "200 CART_SUBMITTED_PARTIAL_SUCCESS, 90318 OK, 61204 QUANTITY_ERROR");
    // An order that has expired is shown, and not sent.
    EXPECT_EQ(associate(41054, 41054), "200 EXPIRED");
    EXPECT_EQ(told(openRequest(41054)), "200");
    EXPECT_EQ(checkOut(41054), nothingToSend);
}

TEST_F(GatewayState, LeavesTheCycleOutBetweenTwoCycles) {
    EXPECT_FALSE(ask(associateRequest(41067, cartOf(41067)))["consultant"].contains("cycle"));
    auto answer = ask(checkoutRequest(41067, "PE"));
    EXPECT_EQ(answer["submittedOrderId"], "PED-PE-00001");
    EXPECT_EQ(answer["products"][0]["totalPrice"].dump(), "990.5");
}

TEST_F(GatewayState, KnowsNoStrangers) {
    const auto cart = cartOf(41051);
    for (const auto& request :
         {associateRequest(41051, "no-such-cart"), associateRequest(41051, ""),
          associateRequest(41051, "/" + cart), associateRequest(41051, cart + "/"),
          associateRequest(41051, cart + "%00"), associateRequest(41051, "x%252f..%252f" + cart),
          associateRequest(5, cart), openRequest(18446744073709551615u), openRequest(41051, "PE"),
          checkoutRequest(41051, "cl")}) {
        EXPECT_EQ(told(request), "404") << request.target + request.body;
    }
}

TEST_F(GatewayState, SendsOnlyOnceWhenTwoCheckoutsMeet) {
    EXPECT_EQ(associate(41051, 41051), "200 OPEN");
    std::array<std::string, 4> answers;
    {
        std::vector<std::jthread> threads;
        for (auto& answer : answers) {
            threads.emplace_back([&] { answer = checkOut(41051); });
        }
    }
    std::ranges::sort(answers);
    EXPECT_THAT(answers, ::testing::ElementsAre(sent, nothingToSend, nothingToSend, nothingToSend));
    EXPECT_EQ(stock(70412), 498);
}

} // namespace quillet::gateway
