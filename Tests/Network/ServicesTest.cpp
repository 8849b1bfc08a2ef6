#include "Models/Bodies.hpp"
#include "Network/SandboxedServices.hpp"
#include "Support/FakeSession.hpp"
#include "Support/Thorough.hpp"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using testing::Services;

/// What of a result does not depend on the call.
struct Outcome {
    bool hasResponse;
    std::optional<ServiceError> error;
    std::int64_t status;
};

/// One of the three calls.
struct Call {
    const char* name;
    std::string goodBody;
    std::function<void(const Services&, std::function<void(Outcome)>)> send;

    friend void PrintTo(const Call& call, std::ostream* stream) { *stream << call.name; }
};

const Call calls[] = {
    {"Associate", tests::orderJson,
     [](const Services& services, auto done) {
         services.associate().associateConsultantToCart("cart", 1, [done](const OrderResult& result) {
             done({result.response.has_value(), result.error, result.httpStatusCode});
         });
     }},
    {"OpenCarts", tests::openOrdersJson,
     [](const Services& services, auto done) {
         services.openCarts().getOpenOrders([done](const OpenOrdersResult& result) {
             done({result.response.has_value(), result.error, result.httpStatusCode});
         });
     }},
    {"Checkout", tests::checkoutJson,
     [](const Services& services, auto done) {
         services.checkout().checkout([done](const CheckoutResult& result) {
             done({result.checkoutResponse.has_value(), result.error, result.httpStatusCode});
         });
     }},
};

struct ServiceCalls : ::testing::TestWithParam<Call>, testing::SandboxedSession {};

} // namespace

TEST(Services, SendExactlyTheseRequests) {
    testing::SandboxedSession sandbox;
    Services services(sandbox.configuration);
    testing::Recorder<std::int64_t> statuses;
    const auto record = [&](auto result) { statuses.record(result.httpStatusCode); };
    const struct {
        std::function<void()> send;
        std::string received;
    } cases[] = {
        {[&] { services.associate().associateConsultantToCart("a b/../ñ", 18446744073709551615u, record); },
         "PATCH /quillet-bff/sell-out-carts/a%20b/../%C3%B1 HTTP/1.1\r\nHost: "
         "gateway.test\r\nAccept-Encoding: gzip\r\n"
         "Content-Type: application/json\r\nConsultant-Token: the.signed.token\r\n"
         "Authorization-Provider: provider\r\nContent-Length: 42\r\n\r\n"
         R"({"consultant":{"id":18446744073709551615}})"},
        {[&] { services.openCarts().getOpenOrders(record); },
         "GET /quillet-bff/consultants/PE/0/sell-out-carts?status=OPEN HTTP/1.1\r\nHost: "
         "gateway.test\r\nAccept-Encoding: gzip\r\n"
         "Accept: application/json\r\nConsultant-Token: the.signed.token\r\n\r\n"},
        {[&] { services.checkout().checkout(record); },
         "POST /quillet-bff/consultants/PE/0/sell-out-carts/checkout HTTP/1.1\r\nHost: "
         "gateway.test\r\nAccept-Encoding: gzip\r\n"
         "Accept: application/json\r\nAuthorization-Provider: provider\r\n"
         "Consultant-Token: the.signed.token\r\nContent-Length: 0\r\n\r\n"},
        {[&] {
             // An empty header is sent too.
             services.authorization.provider.clear();
             services.associate().associateConsultantToCart("", 0, record);
         },
         "PATCH /quillet-bff/sell-out-carts/ HTTP/1.1\r\nHost: gateway.test\r\nAccept-Encoding: "
         "gzip\r\nContent-Type: "
         "application/json\r\n"
         "Consultant-Token: the.signed.token\r\nAuthorization-Provider:\r\nContent-Length: 23\r\n\r\n"
         R"({"consultant":{"id":0}})"},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        sandbox.server.enqueue(testing::Answer::complete(200, ""));
        cases[i].send();
        EXPECT_EQ(statuses.wait(i), 200);
        EXPECT_EQ(sandbox.server.requests().back(), cases[i].received);
    }
}

TEST(Services, CompleteAtOnceWhenTheRequestCannotBeFormed) {
    const auto session = std::make_shared<testing::FakeSession>();
    const struct {
        std::string host;
        std::string cart;
        std::string provider;
        ServiceError error;
    } cases[] = {
        {"https://gateway.test", "cart", "provider", NetworkServiceError::invalidUrl},
        {"gateway.test", "\xff", "provider", NetworkServiceError::invalidUrl},
        {"gateway.test", "cart", "a\r\nX-Evil: 1", platform::EncodingError{"Authorization-Provider"}},
    };
    for (const auto& [host, cart, provider, error] : cases) {
        Services services(session);
        services.host = host;
        services.authorization.provider = provider;
        std::vector<OrderResult> results;
        services.associate().associateConsultantToCart(cart, 1, [&](OrderResult r) { results.push_back(r); });
        ASSERT_EQ(results.size(), 1u);
        EXPECT_EQ(results[0].error, error);
        EXPECT_EQ(results[0].httpStatusCode, 0);
        EXPECT_FALSE(results[0].response);
    }
    EXPECT_TRUE(session->started.empty());
}

TEST_P(ServiceCalls, MakeAResultOfEveryStatusWithEveryBody) {
    const std::string ofClient = R"({"details":"d","error":"Not\/Found","statusCode":-404,"path":"/p"})";
    const std::string ofServer =
        R"({"error":{"response":{"statusCode":1,"message":"inner","error":"e"},"status":2,)"
        R"("message":"ERROR_CART_ALREADY_SUBMITTED"},"statusCode":500,"path":"/p"})";
    const struct {
        std::vector<int> statuses;
        /// The body that is an error's record for these, and the error.
        std::string body;
        std::optional<ServiceError> error;
    } kinds[] = {
        {{200, 201, 302, 399, 600}, "", std::nullopt},
        {{400, 401, 403, 404, 409, 422, 429, 499}, ofClient, ClientError{"d", "Not/Found", -404, "/p"}},
        {{500, 502, 503, 504, 599},
         ofServer,
         ServerError{{{1, "inner", "e"}, 2, "ERROR_CART_ALREADY_SUBMITTED"}, 500, "/p"}},
    };
    const std::string bodies[] = {GetParam().goodBody,
                                  ofClient,
                                  ofServer,
                                  "",
                                  "{",
                                  "null",
                                  "[]",
                                  "<html><body>502 Bad Gateway</body></html>",
                                  ofClient + "x",
                                  tests::replaced(ofClient, R"(,"path":"/p")", ""),
                                  tests::replaced(ofServer, R"(,"path":"/p")", "")};
    const Services services(configuration);
    testing::Recorder<Outcome> outcomes;
    const std::size_t step = testing::thorough(3, 1);
    std::size_t pair = 0;
    for (const auto& [statuses, record, error] : kinds) {
        for (const int status : statuses) {
            for (const auto& body : bodies) {
                if (pair++ % step != 0) {
                    continue;
                }
                SCOPED_TRACE(std::to_string(status) + " " + body);
                server.enqueue(testing::Answer::complete(status, body));
                const auto call = outcomes.count();
                GetParam().send(services, [&](Outcome outcome) { outcomes.record(std::move(outcome)); });
                const auto& outcome = outcomes.wait(call);
                EXPECT_EQ(outcome.hasResponse, body == GetParam().goodBody);
                EXPECT_EQ(outcome.status, status);
                EXPECT_EQ(outcome.error, !error || body == record ? error : HttpStatusCodeError{status});
            }
        }
    }
    RecordProperty("cases", static_cast<int>(outcomes.count()));
}

INSTANTIATE_TEST_SUITE_P(, ServiceCalls, ::testing::ValuesIn(calls),
                         [](const auto& parameter) { return parameter.param.name; });

} // namespace quillet
