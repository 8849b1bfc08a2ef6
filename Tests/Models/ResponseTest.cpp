#include "Models/Bodies.hpp"
#include "Quillet/Checkout.hpp"
#include "Quillet/FatalErrorWrapper.hpp"
#include "Quillet/Orders.hpp"

#include <gmock/gmock.h>

namespace quillet::tests {

using namespace std::chrono;

TEST(OpenOrdersResponseTest, ReadsEveryFieldExactly) {
    const auto response = OpenOrdersResponse::create(openOrdersJson);
    ASSERT_TRUE(response);
    const Cycle cycle{202405, sys_days(2024y / 3 / 1) + 3h, sys_days(2024y / 3 / 22) + 3h - 1ms};
    EXPECT_EQ(response->consultant, (Consultant{8812345, cycle}));
    const OrderItem item{.productCode = 70712,
                         .origin = "MAGAZINE",
                         .productDescription = "Máscara \"Nítida\"",
                         .unitPoints = 3,
                         .totalPoints = 6,
                         .totalPrice = platform::Decimal(1198, -1),
                         .totalProfit = platform::Decimal(3594, -2),
                         .choosable = false,
                         .amount = 2,
                         .magazineAmount = 2,
                         .unitPrice = platform::Decimal(599, -1),
                         .unitProfit = platform::Decimal(1797, -2),
                         .imageUrl = "https://images.example/70712.jpg",
                         .isKit = true};
    const Order order{.cartNumber = 18446744073709551615U,
                      .uuid = "6f1c",
                      .status = "OPEN",
                      .type = "SELL_OUT",
                      .createdAt = sys_days(2024y / 3 / 5) + 13h + 20min + 30456ms,
                      .totalRegularItems = 1,
                      .totalBenefitItems = 0,
                      .totalItems = 1,
                      .totalPoints = 6,
                      .total = platform::Decimal(101, -1),
                      .regularItemsProfit = platform::Decimal(3594, -2),
                      .benefitItemsProfit = platform::Decimal(),
                      .totalProfit = platform::Decimal(3594, -2),
                      .magazineCycle = "202405",
                      .regularItems = {item},
                      .benefitItems = {}};
    EXPECT_EQ(response->openOrders, (std::vector{order, order}));
}

TEST(OpenOrdersResponseTest, TellsAnAbsentBodyFromAnEmptyOneAndFromNull) {
    EXPECT_EQ(OpenOrdersResponse::create(std::nullopt).error(),
              OpenOrdersResponse::Error(OpenOrdersResponse::CodingError::emptyData));
    EXPECT_EQ(OpenOrdersResponse::create("").error(), OpenOrdersResponse::Error(platform::DecodingError()));
    EXPECT_EQ(OpenOrdersResponse::create("null").error(),
              OpenOrdersResponse::Error(
                  platform::DecodingError{platform::DecodingError::Reason::unexpectedValue, "", "object"}));
    EXPECT_TRUE(OpenOrdersResponse::create(R"({"consultant":{"id":1},"carts":[]})")->openOrders.empty());
}

TEST(OrderResponseTest, ReadsNullAsAnAbsentResponse) {
    EXPECT_EQ(OrderResponse::create(std::nullopt).error(),
              OrderResponse::Error(ResponseCodingError::emptyData));
    EXPECT_EQ(OrderResponse::create(" null ").value(), std::nullopt);
    EXPECT_EQ(OrderResponse::create("nul").error(), OrderResponse::Error(platform::DecodingError()));
    const auto response = OrderResponse::create(orderJson);
    ASSERT_TRUE(response && *response);
    EXPECT_EQ((*response)->consultant, (Consultant{1, std::nullopt}));
    // The same amount written with fewer digits is the same order.
    EXPECT_EQ(response, OrderResponse::create(replaced(orderJson, "10.10", "10.1")));
    EXPECT_NE(response, OrderResponse::create(replaced(orderJson, "10.10", "10.11")));
}

TEST(CheckoutResponseTest, ReadsVerdictSummaryAndProducts) {
    const auto response = CheckoutResponse::create(checkoutJson);
    ASSERT_TRUE(response);
    EXPECT_EQ(response->submittedOrderId, "A-1");
    EXPECT_EQ(response->consultant, (Consultant{1, std::nullopt}));
    EXPECT_EQ(response->message, CheckoutResponseMessage::cartSubmittedPartialSuccess);
    EXPECT_EQ(response->summary, (Summary{1, 2, 3, 4, 5, 6, 7}));
    const Product added{1, "Labial", ProductErrorStatus::none, 2, platform::Decimal(15, -1), 0, 0};
    // A status not known here reads as not found; unit points that are not sent are absent, not 0.
    const Product other{2, "Crema", ProductErrorStatus::notFound, 1, platform::Decimal(2), std::nullopt, 9};
    EXPECT_EQ(response->products, (std::vector{added, other}));
}

TEST(CheckoutResponseTest, ReadsEveryVerdictAndStatusByItsExactName) {
    const auto with = [](std::string_view name, std::string_view other) {
        return CheckoutResponse::create(replaced(checkoutJson, name, other)).value();
    };
    using enum ProductErrorStatus;
    EXPECT_EQ(with("PARTIAL_SUCCESS", "SUCCESS").message, CheckoutResponseMessage::cartSubmittedSuccess);
    EXPECT_EQ(with("_PARTIAL_SUCCESS", "\\u005fERROR").message, CheckoutResponseMessage::cartSubmittedError);
    EXPECT_EQ(with("OUT_OF_STOCK", "UNAVAILABLE").products.at(1).status, unavailable);
    EXPECT_EQ(with("OUT_OF_STOCK", "QUANTITY_ERROR").products.at(1).status, quantityError);
    EXPECT_EQ(with("OUT_OF_STOCK", "NOT_FOUND").products.at(1).status, notFound);
    EXPECT_EQ(with("OUT_OF_STOCK", "ok").products.at(1).status, notFound);
}

TEST(CheckoutResponseTest, RepeatsAnUnknownVerdictInAnErrorOfItsOwn) {
    EXPECT_EQ(CheckoutResponse::create(std::nullopt).error(),
              CheckoutResponse::Error(CheckoutResponse::CodingError::emptyData));
    const auto unknown = replaced(checkoutJson, "CART_SUBMITTED_PARTIAL_SUCCESS", "CART_SUBMITTED_OK");
    EXPECT_EQ(CheckoutResponse::create(unknown).error(),
              CheckoutResponse::Error(
                  CheckoutResponseMessage::CodingError{"Error decoding - \"CART_SUBMITTED_OK\"\n"}));
    // The error of an earlier field takes precedence.
    const auto earlier = CheckoutResponse::create(replaced(unknown, "\"A-1\"", "1"));
    EXPECT_EQ(std::get<platform::DecodingError>(earlier.error()).path, "submittedOrderId");
}

TEST(CycleTest, ShowsTheLastTwoDigitsOfTheCode) {
    EXPECT_EQ(Cycle::onlyCode({202405, {}, {}}), "05");
    EXPECT_EQ(Cycle::onlyCode({17, {}, {}}), "17");
    EXPECT_EQ(Cycle::onlyCode({18446744073709551615U, {}, {}}), "15");
}

TEST(CycleTest, CallsTheFatalErrorHookForACodeOfOneDigitAndSurvivesAHookThatReturns) {
    std::string seen;
    const auto original = std::exchange(FatalErrorWrapper::fatalErrorClosure,
                                        [&](std::string_view, const char* file, unsigned line) {
                                            seen = file + (line > 0 ? std::string(":") : "");
                                        });
    EXPECT_EQ(Cycle::onlyCode({5, {}, {}}), "5");
    FatalErrorWrapper::fatalErrorClosure = original;
    EXPECT_EQ(seen, "Cycle.cpp:");
}

TEST(FatalErrorWrapperDeathTest, StopsTheProgramWithMessageFileAndLineUntilReplaced) {
    EXPECT_DEATH(FatalErrorWrapper::fatalErrorClosure("no way", "Here.cpp", 7),
                 "Fatal error: no way: file Here.cpp, line 7");
}

} // namespace quillet::tests
