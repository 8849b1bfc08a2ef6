#include "Models/Bodies.hpp"
#include "Quillet/Checkout.hpp"
#include "Quillet/Orders.hpp"
#include "Quillet/Platform/URLSessionConfiguration.hpp"
#include "Support/FailingAllocations.hpp"

#include <gtest/gtest.h>

namespace quillet {

namespace {

/// A body of as many elements as fit into the largest accepted one.
struct Dense {
    std::string name;
    std::string before;
    std::string element;
    std::string after;
    bool (*decodes)(const std::optional<std::string>&);
};

std::ostream& operator<<(std::ostream& stream, const Dense& dense) {
    return stream << dense.name;
}

template <typename Response>
bool decodes(const std::optional<std::string>& body) {
    return Response::create(body).has_value();
}

const std::string consultant = R"("consultant":{"id":0,"cycle":null})";
const std::string item =
    R"({"productCode":0,"origin":"","productDescription":"","unitPoints":0,"totalPoints":0,"totalPrice":0,)"
    R"("totalProfit":0,"choosable":true,"amount":0,"magazineAmount":0,"unitPrice":0,"unitProfit":0,)"
    R"("imageUrl":"","isKit":true})";
const std::string product =
    R"({"productCode":0,"description":"","status":"OK","quantity":0,"totalPrice":0,"totalPoints":0})";
// A cart split before its list of benefits.
const std::string cart = tests::replaced(tests::cartJson, tests::itemJson, "");
const auto benefits = cart.rfind("[") + 1;

const Dense bodies[] = {
    {"Zeros", "{" + consultant + R"(,"carts":[],"later":[0)", ",0", "]}", &decodes<OpenOrdersResponse>},
    {"Carts", "{" + consultant + R"(,"carts":[)" + cart, "," + cart, "]}", &decodes<OpenOrdersResponse>},
    {"Items", "{" + consultant + R"(,"carts":[)" + cart.substr(0, benefits) + item, "," + item,
     cart.substr(benefits) + "]}", &decodes<OpenOrdersResponse>},
    {"Products",
     R"({"submittedOrderId":"","message":"CART_SUBMITTED_SUCCESS",)" + consultant +
         R"(,"summary":{"allItems":1,"errorItems":2,"addedItems":3,"allPoints":4,"addedPoints":5,)" +
         R"("addedProducts":6,"errorProducts":7},"products":[)" + product,
     "," + product, "]}", &decodes<CheckoutResponse>},
};

class PeakMemory : public ::testing::TestWithParam<Dense> {};

} // namespace

TEST_P(PeakMemory, IsLessThanAQuarterOfAGibibyteForTheLargestBody) {
    const auto& [name, before, element, after, decodes] = GetParam();
    const std::size_t size = platform::URLSessionConfiguration().maximumBodyBytes;
    const testing::PeakMemory peak;
    std::optional<std::string> body(before);
    body->reserve(size);
    while (body->size() + element.size() + after.size() <= size) {
        body->append(element);
    }
    body->append(after);
    EXPECT_TRUE(decodes(body));
    EXPECT_GT(peak.bytes(), size);
    EXPECT_LT(peak.bytes(), std::size_t{256} << 20);
    RecordProperty("MiB", std::to_string(peak.bytes() >> 20));
}

INSTANTIATE_TEST_SUITE_P(, PeakMemory, ::testing::ValuesIn(bodies),
                         [](const auto& parameter) { return parameter.param.name; });

} // namespace quillet
