#include "Gateway/Adjustment.hpp"
#include "Gateway/Requests.hpp"
#include "Gateway/Router.hpp"
#include "Gateway/Store.hpp"
#include "Gateway/TemporaryFolder.hpp"

#include <algorithm>
#include <map>
#include <thread>

#include <gmock/gmock.h>

namespace quillet::gateway {

namespace {

using testing::ElementsAre;
using testing::Pair;

struct Answer {
    int status = 0;
    Json body;
};

class GatewayState : public testing::Test {
protected:
    Answer ask(const Request& request) const {
        const auto reply = router.handle(request).reply;
        return {reply.status, Json::parse(reply.body)};
    }
    Answer associate(std::uint64_t consultant, const std::string& cart) const {
        return ask(associateRequest(consultant, cart));
    }
    Answer checkOut(std::uint64_t consultant) const { return ask(checkoutRequest(consultant)); }
    std::size_t openCarts(std::uint64_t consultant) const {
        return ask(openRequest(consultant)).body["carts"].size();
    }

    void adjust(const std::expected<Adjustment, std::string>& adjustment) {
        ASSERT_TRUE(adjustment) << adjustment.error();
        const auto applied = apply(database, *adjustment);
        ASSERT_TRUE(applied) << applied.error();
    }
    std::int64_t stock(std::int64_t product) {
        auto row = database.query("SELECT stock FROM catalogue WHERE code = ?", product);
        return row.next() ? row.integer(0) : -1;
    }

    TemporaryFolder folder;
    Database database = openStore(folder.path());
    Router router{folder.path()};
};

std::map<std::int64_t, std::string> statuses(const Answer& answer) {
    std::map<std::int64_t, std::string> found;
    for (const auto& product : answer.body["products"]) {
        found[product["productCode"]] = product["status"];
    }
    return found;
}

} // namespace

TEST_F(GatewayState, SendsWhatItCanAndCountsTheRest) {
    ASSERT_EQ(associate(41052, cartOf(41052)).body["cart"]["totalPoints"], 86);
    std::int64_t inProgress = 0;
    const auto open = ask(openRequest(41052));
    for (const auto& cart : open.body["carts"]) {
        inProgress += cart["totalPoints"].get<std::int64_t>();
    }
    EXPECT_EQ(inProgress, 1240);

    const auto answer = checkOut(41052);
    EXPECT_EQ(answer.status, 200);
    EXPECT_EQ(answer.body["message"], "CART_SUBMITTED_PARTIAL_SUCCESS");
    EXPECT_EQ(answer.body["summary"].dump(),
              R"({"allItems":18,"errorItems":15,"addedItems":3,"allPoints":120,"addedPoints":62,)"
              R"("addedProducts":2,"errorProducts":2})");
    std::vector<std::pair<std::int64_t, std::string>> products;
    for (const auto& product : answer.body["products"]) {
        products.emplace_back(product["productCode"], product["status"]);
    }
    EXPECT_THAT(products, ElementsAre(Pair(70412, "OK"), Pair(81190, "OK"), Pair(90318, "UNAVAILABLE"),
                                      Pair(61204, "QUANTITY_ERROR")));
    // Points given per pack have no points per unit.
    EXPECT_FALSE(answer.body["products"][3].contains("unitPoints"));
    EXPECT_EQ(answer.body["products"][3]["totalPoints"], 40);
    EXPECT_EQ(stock(70412), 498);
    EXPECT_EQ(stock(61204), 400);
    // The two carts of the next cycle are still waiting for it.
    EXPECT_EQ(openCarts(41052), 2u);
}

TEST_F(GatewayState, DecidesAProductsStatusByCatalogueStockAndQuota) {
    associate(41068, cartOf(41068));
    // The lipstick changes from unavailable to added and the cream the other way round; the shampoo has a
    // quota for one consultant.
    adjust(parseStock("90318=4"));
    adjust(parseStock("70412=0"));
    adjust(parseQuota("61204@41068=9"));
    adjust(parseQuota("10005=1"));
    EXPECT_THAT(statuses(checkOut(41068)),
                ElementsAre(Pair(10005, "QUANTITY_ERROR"), Pair(61204, "OK"), Pair(70412, "UNAVAILABLE"),
                            Pair(88210, "NOT_FOUND"), Pair(90318, "OK")));
    EXPECT_EQ(stock(90318), 0);
}

TEST_F(GatewayState, CountsWhatWasSentBeforeAgainstTheQuota) {
    adjust(parseQuota("70412=3"));
    associate(41051, cartOf(41051));
    EXPECT_EQ(checkOut(41051).body["message"], "CART_SUBMITTED_SUCCESS");
    associate(41051, cartOf(41060));
    EXPECT_THAT(statuses(checkOut(41051)), ElementsAre(Pair(70412, "QUANTITY_ERROR"), Pair(81190, "OK")));
}

TEST_F(GatewayState, ClosesACartOnceItsProductsAreSent) {
    associate(41051, cartOf(41051));
    EXPECT_EQ(checkOut(41051).status, 200);
    EXPECT_EQ(openCarts(41051), 0u);
    const auto nothing = checkOut(41051);
    EXPECT_EQ(nothing.status, 400);
    EXPECT_EQ(nothing.body["message"], "CART_SUBMITTED_ERROR");
    const auto again = associate(41051, cartOf(41051));
    EXPECT_EQ(again.status, 422);
    EXPECT_EQ(again.body["error"]["message"], "ERROR_CART_ALREADY_SUBMITTED");
}

TEST_F(GatewayState, LeavesEverythingAsItWasWhenNothingCanBeSent) {
    associate(41053, cartOf(41053));
    const auto none = checkOut(41053);
    EXPECT_EQ(none.status, 422);
    EXPECT_EQ(none.body["message"], "CART_SUBMITTED_ERROR");
    EXPECT_EQ(none.body["summary"]["errorProducts"], 2);
    EXPECT_EQ(openCarts(41053), 1u);
    adjust(parseStock("90318=3"));
    EXPECT_EQ(checkOut(41053).status, 200);
}

TEST_F(GatewayState, KeepsACartForWhoeverCameFirst) {
    EXPECT_EQ(associate(41051, cartOf(41051)).status, 200);
    EXPECT_EQ(associate(41051, cartOf(41051)).status, 200);
    const auto second = associate(41060, cartOf(41051));
    EXPECT_EQ(second.status, 422);
    EXPECT_EQ(second.body["error"]["message"], "ERROR_CART_OTHER_CONSULTANT");
    EXPECT_EQ(second.body["error"]["status"], 422);
}

TEST_F(GatewayState, ShowsAnExpiredCartButHasNothingToSend) {
    const auto shown = associate(41054, cartOf(41054));
    EXPECT_EQ(shown.status, 200);
    EXPECT_EQ(shown.body["cart"]["status"], "EXPIRED");
    EXPECT_EQ(openCarts(41054), 0u);
    EXPECT_EQ(checkOut(41054).status, 400);
}

TEST_F(GatewayState, LeavesTheCycleOutBetweenTwoCycles) {
    EXPECT_FALSE(associate(41067, cartOf(41067)).body["consultant"].contains("cycle"));
    const auto answer = ask(checkoutRequest(41067, "PE"));
    EXPECT_EQ(answer.body["summary"]["addedPoints"], 1);
    EXPECT_EQ(answer.body["products"][0]["totalPrice"].dump(), "990.5");
}

TEST_F(GatewayState, KnowsNoStrangers) {
    const std::vector<Request> requests{associateRequest(41051, "no-such-cart"),
                                        associateRequest(41051, ""),
                                        associateRequest(5, cartOf(41051)),
                                        openRequest(18446744073709551615u),
                                        openRequest(41051, "PE"),
                                        checkoutRequest(41051, "cl")};
    for (const auto& request : requests) {
        SCOPED_TRACE(request.target + request.body);
        const auto answer = ask(request);
        EXPECT_EQ(answer.status, 404);
        EXPECT_EQ(answer.body["statusCode"], 404);
    }
}

TEST_F(GatewayState, SendsOnlyOnceWhenTwoCheckoutsMeet) {
    associate(41051, cartOf(41051));
    std::array<int, 4> answers{};
    {
        std::vector<std::jthread> threads;
        for (auto& status : answers) {
            threads.emplace_back([&] { status = router.handle(checkoutRequest(41051)).reply.status; });
        }
    }
    std::ranges::sort(answers);
    EXPECT_THAT(answers, ElementsAre(200, 400, 400, 400));
    EXPECT_EQ(stock(70412), 498);
}

TEST_F(GatewayState, AnswersAServerErrorWhenItsDatabaseIsSpoilt) {
    database.script("UPDATE faults SET kind = 'earthquake' WHERE consultant = 41055");
    const auto answer = associate(41055, cartOf(41055));
    EXPECT_EQ(answer.status, 500);
    EXPECT_EQ(answer.body["error"]["message"], "ERROR_DATABASE");
}

} // namespace quillet::gateway
