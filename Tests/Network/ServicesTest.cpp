#include "Models/Bodies.hpp"
#include "Network/SandboxedServices.hpp"
#include "Support/Thorough.hpp"

#include <gtest/gtest.h>

namespace quillet {

using testing::Services;

TEST(ServiceError, TellsItselfAndTheCodeOfAFailedExchange) {
    using platform::URLError;
    EXPECT_EQ(description(ServiceError(ClientError{"d", "Not/Found", -404, "/p"})),
              "HTTP Code: -404\nNot/Found");
    EXPECT_EQ(description(HttpErrorResponse{422, "inner", "Unprocessable"}),
              "HTTP Code: 422\ninner\nUnprocessable");
    EXPECT_EQ(platformErrorCode(URLError{URLError::Code::notConnectedToInternet, ""}), -1009);
    EXPECT_EQ(platformErrorCode(HttpStatusCodeError{-1009}), std::nullopt);
}

TEST(URLRequestWrapper, JoinsASecondValueOfAHeaderAndRefusesOneThatWouldSplitTheRequest) {
    const auto request = URLRequestFactory().create({});
    EXPECT_TRUE(request->addValue("a", "Accept"));
    EXPECT_TRUE(request->addValue("x\ty ñ", "Other"));
    EXPECT_TRUE(request->addValue("b", "accept"));
    for (const std::string value : {"a\r\nX-Evil: 1", "a\nb", "a\x7f"}) {
        EXPECT_EQ(request->addValue(value, "Token"), std::unexpected(platform::EncodingError{"Token"}));
    }
    for (const std::string name : {"To ken", "Token\r\n", "Token:", ""}) {
        EXPECT_EQ(request->addValue("a", name), std::unexpected(platform::EncodingError{"header name"}));
    }
    EXPECT_EQ(request->urlRequest().headerFields.all(),
              (std::vector<platform::HTTPHeaderField>{{"Accept", "a,b"}, {"Other", "x\ty ñ"}}));
}

TEST(Services, CompleteAtOnceWhenTheRequestCannotBeFormed) {
    testing::SandboxedSession sandbox;
    Services services(sandbox.configuration);
    const auto errorFor = [&](const std::string& cart) {
        std::optional<OrderResult> result;
        services.associate().associateConsultantToCart(cart, 1,
                                                       [&](OrderResult r) { result = std::move(r); });
        EXPECT_TRUE(result && !result->response && result->httpStatusCode == 0);
        return result->error.value();
    };
    EXPECT_EQ(errorFor("\xff"), ServiceError(NetworkServiceError::invalidUrl));
    services.authorization.provider = "a\r\nX-Evil: 1";
    EXPECT_EQ(errorFor("cart"), ServiceError(platform::EncodingError{"Authorization-Provider"}));
    services.host = "https://gateway.test";
    EXPECT_EQ(errorFor("cart"), ServiceError(NetworkServiceError::invalidUrl));
    EXPECT_EQ(sandbox.server.requests().size(), 0u);
}

TEST(Services, MakeAResultOfEveryStatusWithEveryBody) {
    testing::SandboxedSession sandbox;
    const Services services(sandbox.configuration);
    const struct {
        std::vector<int> statuses;
        /// The body that is an error's record for these, and the error.
        std::string body;
        std::optional<ServiceError> error;
    } kinds[] = {
        {{200, 201, 302, 399, 600}, "", std::nullopt},
        {{400, 401, 403, 404, 409, 422, 429, 499},
         tests::clientErrorJson,
         ClientError{"d", "Not/Found", -404, "/p"}},
        {{500, 502, 503, 504, 599},
         tests::serverErrorJson,
         ServerError{{{422, "inner", "Unprocessable"}, 422, "ERROR_CART_ALREADY_SUBMITTED"}, 500, "/p"}},
    };
    std::vector<std::string> bodies = {"", "{", "null", "[]", "<html>502 Bad Gateway</html>"};
    for (const auto& record : {tests::clientErrorJson, tests::serverErrorJson}) {
        bodies.insert(bodies.end(), {record, record + "x", tests::replaced(record, R"(,"path":"/p")", "")});
    }
    bodies.insert(bodies.end(), {tests::orderJson, tests::openOrdersJson, tests::checkoutJson});
    std::size_t pair = 0;
    const auto expect = [&]<typename Result>(auto Result::*response, const std::string& goodBody, auto call) {
        testing::Recorder<Result> results;
        for (const auto& [statuses, record, error] : kinds) {
            for (const int status : statuses) {
                for (const auto& body : bodies) {
                    if (pair++ % testing::thorough(3, 1) != 0) {
                        continue;
                    }
                    SCOPED_TRACE(std::to_string(status) + " " + body);
                    sandbox.server.enqueue(testing::Answer::complete(status, body));
                    const auto count = results.count();
                    call([&](Result result) { results.record(std::move(result)); });
                    const Result& result = results.wait(count);
                    EXPECT_EQ((result.*response).has_value(), body == goodBody);
                    EXPECT_EQ(result.httpStatusCode, status);
                    EXPECT_EQ(result.error, !error || body == record ? error : HttpStatusCodeError{status});
                }
            }
        }
    };
    expect(&OrderResult::response, tests::orderJson,
           [&](auto completion) { services.associate().associateConsultantToCart("cart", 1, completion); });
    expect(&OpenOrdersResult::response, tests::openOrdersJson,
           [&](auto completion) { services.openCarts().getOpenOrders(completion); });
    expect(&CheckoutResult::checkoutResponse, tests::checkoutJson,
           [&](auto completion) { services.checkout().checkout(completion); });
    RecordProperty("cases", static_cast<int>(sandbox.server.requests().size()));
}

} // namespace quillet
