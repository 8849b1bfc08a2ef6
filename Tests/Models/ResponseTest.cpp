#include "Models/Bodies.hpp"
#include "Quillet/Checkout.hpp"
#include "Quillet/FatalErrorWrapper.hpp"
#include "Quillet/Orders.hpp"

#include <gmock/gmock.h>

namespace quillet::tests {

using namespace std::chrono;
using platform::Decimal;
using platform::DecodingError;

// The members of a record stand in its order, which is that of the body.
TEST(ResponseTest, HasEveryFieldOfAnOrder) {
    const Cycle cycle{202405, sys_days(2024y / 3 / 1) + 3h, sys_days(2024y / 3 / 22) + 3h - 1ms};
    const OrderItem item(70712, "MAGAZINE", "Máscara \"Nítida\"", 3, 6, Decimal(1198, -1), Decimal(3594, -2),
                         false, 2, 1, Decimal(599, -1), Decimal(1797, -2), "https://images.example/70712.jpg",
                         true);
    const auto createdAt = sys_days(2024y / 3 / 5) + 13h + 20min + 30456ms;
    const Order order(18446744073709551615U, "6f1c", "OPEN", "SELL_OUT", createdAt, 1, 2, 3, 8,
                      Decimal(101, -1), Decimal(3594, -2), Decimal(), Decimal(3604, -2), "202405", {item},
                      {});
    EXPECT_EQ(OpenOrdersResponse::create(openOrdersJson),
              (OpenOrdersResponse{{8812345, cycle}, {order, order}}));
    EXPECT_EQ(OrderResponse::create(orderJson), (OrderResponse{{1, std::nullopt}, order}));
}

TEST(ResponseTest, IsAbsentForNullAndAnErrorWithoutABody) {
    EXPECT_EQ(OpenOrdersResponse::create(std::nullopt).error(),
              OpenOrdersResponse::Error(OpenOrdersResponse::CodingError::emptyData));
    EXPECT_EQ(OpenOrdersResponse::create("").error(), OpenOrdersResponse::Error(DecodingError()));
    EXPECT_EQ(OrderResponse::create(std::nullopt).error(),
              OrderResponse::Error(ResponseCodingError::emptyData));
    EXPECT_EQ(OrderResponse::create(" null ").value(), std::nullopt);
    EXPECT_EQ(CheckoutResponse::create(std::nullopt).error(),
              CheckoutResponse::Error(CheckoutResponse::CodingError::emptyData));
}

TEST(CheckoutResponseTest, HasEveryVerdictSummaryAndStatusByItsExactName) {
    using enum CheckoutResponseMessage::Case;
    using enum ProductErrorStatus;
    const Product added{1, "Labial", none, 2, Decimal(15, -1), 0, 0};
    // A status not known here reads as not found; unit points that are not sent are absent, not 0.
    const Product other{2, "Crema", notFound, 1, Decimal(2), std::nullopt, 9};
    EXPECT_EQ(CheckoutResponse::create(checkoutJson),
              (CheckoutResponse{
                  "A-1", {1, {}}, cartSubmittedPartialSuccess, {1, 2, 3, 4, 5, 6, 7}, {added, other}}));
    const auto with = [](std::string_view name, std::string_view instead) {
        return CheckoutResponse::create(replaced(checkoutJson, name, instead)).value();
    };
    EXPECT_EQ(with("PARTIAL_SUCCESS", "SUCCESS").message, cartSubmittedSuccess);
    EXPECT_EQ(with("_PARTIAL_SUCCESS", "\\u005fERROR").message, cartSubmittedError);
    EXPECT_EQ(with("OUT_OF_STOCK", "UNAVAILABLE").products.at(1).status, unavailable);
    EXPECT_EQ(with("OUT_OF_STOCK", "QUANTITY_ERROR").products.at(1).status, quantityError);
    EXPECT_EQ(with("OUT_OF_STOCK", "ok").products.at(1).status, notFound);
}

TEST(CheckoutResponseTest, RepeatsAnUnknownVerdictInAnErrorOfItsOwn) {
    const auto unknown = replaced(checkoutJson, "CART_SUBMITTED_PARTIAL_SUCCESS", "CART_SUBMITTED_OK");
    EXPECT_EQ(CheckoutResponse::create(unknown).error(),
              CheckoutResponse::Error(
                  CheckoutResponseMessage::CodingError{"Error decoding - \"CART_SUBMITTED_OK\"\n"}));
    // The error of an earlier field takes precedence.
    const auto earlier = CheckoutResponse::create(replaced(unknown, "\"A-1\"", "1"));
    EXPECT_EQ(std::get<DecodingError>(earlier.error()).path, "submittedOrderId");
}

TEST(CycleDeathTest, ShowsTheLastTwoDigitsOfTheCodeAndStopsTheProgramForOneUnlessAHookReturns) {
    EXPECT_EQ(Cycle::onlyCode({202405, {}, {}}), "05");
    EXPECT_EQ(Cycle::onlyCode({17, {}, {}}), "17");
    EXPECT_EQ(Cycle::onlyCode({18446744073709551615U, {}, {}}), "15");
    const Cycle wrong{5, {}, {}};
    EXPECT_DEATH(static_cast<void>(Cycle::onlyCode(wrong)),
                 "^Fatal error: The cycle's code has fewer than two digits: file Cycle.cpp, line [0-9]+\n");
    const auto original = std::exchange(FatalErrorWrapper::fatalErrorClosure, [](auto&&...) {});
    EXPECT_EQ(Cycle::onlyCode(wrong), "5");
    FatalErrorWrapper::fatalErrorClosure = original;
}

} // namespace quillet::tests
