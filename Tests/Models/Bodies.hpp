#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace quillet::tests {

inline const std::string itemJson =
    R"({"productCode":70712,"origin":"MAGAZINE","productDescription":"Máscara \"N\u00edtida\"",
    "unitPoints":3,"totalPoints":6,"totalPrice":119.80,"totalProfit":35.94,"choosable":false,"amount":2,
    "magazineAmount":1,"unitPrice":59.90,"unitProfit":17.97,"imageUrl":"https:\/\/images.example\/70712.jpg",
    "isKit":true})";

inline const std::string cartJson =
    R"({"cartNumber":18446744073709551615,"cartUuid":"6f1c","status":"OPEN","type":"SELL_OUT",
    "createdAt":"2024-03-05T10:20:30.456-0300","totalRegularItems":1,"totalBenefitItems":2,"totalItems":3,
    "totalPoints":8,"cartTotal":10.10,"regularItemsProfit":35.94,"benefitItemsProfit":0,"totalProfit":36.04,
    "magazineCycle":"202405","regularItems":[)" +
    itemJson + R"(],"benefitItems":[]})";

inline const std::string consultantJson =
    R"({"id":8812345,"cycle":{"code":202405,"startDate":"2024-03-01T00:00:00.000-0300",
    "endDate":"2024-03-21T23:59:59.999-0300"}})";

inline const std::string openOrdersJson = R"({"consultant":)" + consultantJson + R"(,"carts":[)" + cartJson +
                                          "," + cartJson +
                                          R"(], "later": [{"x": [1, -2.5e+3, true, null, "é\n"]}, {}]})";

inline const std::string orderJson = R"({"consultant":{"id":1},"cart":)" + cartJson + "}";

inline const std::string checkoutJson = R"({"submittedOrderId":"A-1","consultant":{"id":1,"cycle":null},
    "message":"CART_SUBMITTED_PARTIAL_SUCCESS","summary":{"allItems":1,"errorItems":2,"addedItems":3,"allPoints":4,
    "addedPoints":5,"addedProducts":6,"errorProducts":7},"products":[{"productCode":1,"description":"Labial",
    "status":"OK","quantity":2,"totalPrice":1.5,"unitPoints":0,"totalPoints":0},{"productCode":2,
    "description":"Crema","status":"OUT_OF_STOCK","quantity":1,"totalPrice":2,"totalPoints":9}]})";

inline const std::string clientErrorJson =
    R"({"details":"d","error":"Not\/Found","statusCode":-404,"path":"/p"})";

inline const std::string serverErrorJson =
    R"({"error":{"response":{"statusCode":422,"message":"inner","error":"Unprocessable"},"status":422,
    "message":"ERROR_CART_ALREADY_SUBMITTED"},"statusCode":500,"path":"/p"})";

/// `text` with its last `from` replaced. Throws if there is none, since the case would then test nothing.
inline std::string replaced(std::string text, std::string_view from, std::string_view to) {
    const std::size_t position = text.rfind(from);
    if (position == text.npos) {
        throw std::invalid_argument("nothing to replace: " + std::string(from));
    }
    return text.replace(position, from.size(), to);
}

inline std::string repeated(std::string_view text, std::size_t times) {
    std::string all;
    for (std::size_t i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

} // namespace quillet::tests
