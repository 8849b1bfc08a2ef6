#include "Models/Bodies.hpp"
#include "Quillet/Checkout.hpp"
#include "Quillet/Orders.hpp"

#include <gmock/gmock.h>

namespace quillet::tests {

using Reason = platform::DecodingError::Reason;

struct Fault {
    std::string from;
    std::string to;
    std::string path;
    std::string expected;
    Reason reason = Reason::unexpectedValue;
};

template <typename Response>
void expectFaults(const std::string& body, const std::vector<Fault>& faults) {
    ASSERT_TRUE(Response::create(body));
    for (const Fault& fault : faults) {
        SCOPED_TRACE(fault.from + " -> " + fault.to);
        const auto response = Response::create(replaced(body, fault.from, fault.to));
        ASSERT_FALSE(response);
        ASSERT_TRUE(std::holds_alternative<platform::DecodingError>(response.error()));
        EXPECT_EQ(std::get<platform::DecodingError>(response.error()),
                  (platform::DecodingError{fault.reason, fault.path, fault.expected}))
            << std::get<platform::DecodingError>(response.error()).description();
    }
}

TEST(DecodingErrorTest, NamesThePathAndWhatWasExpectedInAnOpenCartsBody) {
    const std::string item = "carts[1].regularItems[0].";
    const std::string date = "date of the form yyyy-MM-dd'T'HH:mm:ss.SSSZ";
    expectFaults<OpenOrdersResponse>(
        openOrdersJson,
        {{"\"amount\":2", "\"amount\":2.5", item + "amount", "unsigned integer"},
         {"\"amount\":2", "\"amount\":-1", item + "amount", "unsigned integer"},
         {"\"amount\":2", "\"amount\":\"2\"", item + "amount", "unsigned integer"},
         {"\"amount\":2", "\"amount\":null", item + "amount", "unsigned integer"},
         {"\"amount\":2", "\"amount\":{\"a\":[[]]}", item + "amount", "unsigned integer"},
         {"\"amount\":2,", "", item + "amount", "unsigned integer", Reason::missingKey},
         {"18446744073709551615", "18446744073709551616", "carts[1].cartNumber", "unsigned integer"},
         {"18446744073709551615", "1e999999999", "carts[1].cartNumber", "unsigned integer"},
         {"18446744073709551615", "1.00000000000000000000000000000000000000000000000001",
          "carts[1].cartNumber", "unsigned integer"},
         {"cartUuid", "uuid", "carts[1].cartUuid", "text", Reason::missingKey},
         {"cartTotal", "total", "carts[1].cartTotal", "decimal number", Reason::missingKey},
         {"10.10", "\"10.10\"", "carts[1].cartTotal", "decimal number"},
         {"10.10", "1e999999999", "carts[1].cartTotal", "decimal number"},
         {"\"isKit\":true", "\"isKit\":\"true\"", item + "isKit", "boolean"},
         {"\"MAGAZINE\"", "7", item + "origin", "text"},
         {"2024-03-05T10:20:30.456-0300", "2024-03-05", "carts[1].createdAt", date},
         {"\"benefitItems\":[]", "\"benefitItems\":{}", "carts[1].benefitItems", "array"},
         {"\"benefitItems\":[]", "\"benefitItems\":[7]", "carts[1].benefitItems[0]", "object"},
         {"\"id\":", "\"identifier\":", "consultant.id", "unsigned integer", Reason::missingKey},
         {"\"startDate\":", "\"start\":", "consultant.cycle.startDate", date, Reason::missingKey},
         {"2024-03-01T00:00:00.000-0300", "2024-03-01T00:00:00Z", "consultant.cycle.startDate", date},
         {R"("code":202405)", R"("code":null)", "consultant.cycle.code", "unsigned integer"}});
}

TEST(DecodingErrorTest, NamesThePathAndWhatWasExpectedInACheckoutBody) {
    expectFaults<CheckoutResponse>(
        checkoutJson,
        {{"\"OUT_OF_STOCK\"", "null", "products[1].status", "text"},
         {"\"totalPoints\":9", "\"points\":9", "products[1].totalPoints", "unsigned integer",
          Reason::missingKey},
         {"\"unitPoints\":0", "\"unitPoints\":\"0\"", "products[0].unitPoints", "unsigned integer"},
         {"\"summary\"", "\"sum\"", "summary", "object", Reason::missingKey},
         {"\"errorProducts\":7", "\"errorProducts\":-7", "summary.errorProducts", "unsigned integer"},
         {"\"CART_SUBMITTED_PARTIAL_SUCCESS\"", "3", "message", "verdict"},
         {"\"message\"", "\"Message\"", "message", "verdict", Reason::missingKey},
         {"\"cycle\":null", "\"cycle\":{}", "consultant.cycle.code", "unsigned integer", Reason::missingKey},
         {"\"A-1\"", "[]", "submittedOrderId", "text"}});
}

TEST(DecodingErrorTest, ReportsTheFirstFieldOfTheTableWhereverItStands) {
    const auto pathOf = [](const std::string& body) {
        return std::get<platform::DecodingError>(OpenOrdersResponse::create(body).error()).path;
    };
    EXPECT_EQ(pathOf(R"({"carts":[{}],"consultant":{"id":"x","cycle":7}})"), "consultant.id");
    EXPECT_EQ(pathOf(R"({"carts":7})"), "consultant");
    EXPECT_EQ(pathOf(R"({"carts":[{"status":7,"cartUuid":8}, 9],"consultant":{"id":1}})"),
              "carts[0].cartNumber");
    // A syntax error of the JSON takes precedence over all others.
    EXPECT_EQ(pathOf(R"({"carts":7,"consultant":7,})"), "");
}

} // namespace quillet::tests
