#include "Network/Errors/HttpErrorFactory.hpp"
#include "Network/Request/URLRequestWrapper.hpp"
#include "Network/Services/SellOutCartCheckoutService.hpp"
#include "Network/Services/SellOutCartService.hpp"
#include "Network/Services/SellOutCartsStatusOpenService.hpp"
#include "Network/Session/URLSessionWrapper.hpp"
#include "Network/Url/UrlCreator.hpp"
#include "Support/FakeSession.hpp"
#include "Support/SandboxedSession.hpp"

#include <gtest/gtest.h>

namespace quillet {

namespace {

const auto requests = std::make_shared<URLRequestFactory>();
const auto errors = std::make_shared<HttpErrorFactory>();
const auto urls = std::make_shared<UrlCreator>();

// The three services, as the workers make them.
struct Services {
    std::shared_ptr<const URLSessionDataTaskCreating> session;
    std::string host = testing::gatewayHost;
    Authorization authorization{"the.signed.token", "provider"};
    std::string country = "PE";
    std::uint64_t consultantId = 0;

    SellOutCartService associate() const { return {session, requests, host, errors, urls, authorization}; }
    SellOutCartsStatusOpenService openCarts() const {
        return {host, {country, consultantId}, requests, authorization.jwt, session, errors, urls};
    }
    SellOutCartCheckoutService checkout() const {
        return {authorization, country, consultantId, host, requests, session, errors, urls};
    }
};

const std::string openCartsBody = R"({"consultant":{"id":7},"carts":[]})";

} // namespace

TEST(Services, SendExactlyTheseRequests) {
    testing::SandboxedSession sandbox;
    Services services{
        std::make_shared<URLSessionWrapper>(std::make_shared<platform::URLSession>(sandbox.configuration))};
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
        Services services;
        std::string cart;
        ServiceError error;
    } cases[] = {
        {{session, "https://gateway.test"}, "cart", NetworkServiceError::invalidUrl},
        {{session, "gateway.test"}, "\xff", NetworkServiceError::invalidUrl},
        {{session, "gateway.test", {"token", "a\r\nX-Evil: 1"}},
         "cart",
         platform::EncodingError{"Authorization-Provider"}},
    };
    for (const auto& [services, cart, error] : cases) {
        std::vector<OrderResult> results;
        services.associate().associateConsultantToCart(cart, 1, [&](OrderResult r) { results.push_back(r); });
        ASSERT_EQ(results.size(), 1u);
        EXPECT_EQ(results[0].error, error);
        EXPECT_EQ(results[0].httpStatusCode, 0);
        EXPECT_FALSE(results[0].response);
    }
    EXPECT_TRUE(session->started.empty());
}

TEST(Services, MakeAResultOfEveryAnswer) {
    const std::string client = R"({"details":"d","error":"e","statusCode":404,"path":"/p"})";
    const std::string server =
        R"({"error":{"response":{"statusCode":1,"message":"m","error":"e"},"status":2,)"
        R"("message":"CODE"},"statusCode":500,"path":"/p"})";
    const ClientError clientError{"d", "e", 404, "/p"};
    const ServerError serverError{{{1, "m", "e"}, 2, "CODE"}, 500, "/p"};
    const platform::URLError lost{platform::URLError::Code::networkConnectionLost, "lost"};
    const struct {
        std::optional<std::string> data;
        std::optional<platform::HTTPURLResponse> response;
        std::optional<platform::URLError> transportError;
        bool hasResponse;
        std::optional<ServiceError> error;
    } cases[] = {
        {openCartsBody, {{200}}, {}, true, {}},
        {"{", {{200}}, {}, false, {}},
        {"", {{204}}, {}, false, {}},
        {client, {{200}}, {}, false, {}},
        {client, {{302}}, {}, false, {}},
        {client, {{399}}, {}, false, {}},
        {client, {{400}}, {}, false, clientError},
        {client, {{499}}, {}, false, clientError},
        {server, {{422}}, {}, false, HttpStatusCodeError{422}},
        {"", {{404}}, {}, false, HttpStatusCodeError{404}},
        {server, {{500}}, {}, false, serverError},
        {server, {{599}}, {}, false, serverError},
        {server, {{600}}, {}, false, {}},
        {client, {{504}}, {}, false, HttpStatusCodeError{504}},
        {openCartsBody, {{500}}, {}, true, HttpStatusCodeError{500}},
        {{}, {}, lost, false, lost},
    };
    for (const auto& [data, response, transportError, hasResponse, error] : cases) {
        SCOPED_TRACE(data.value_or("absent") +
                     std::to_string(response.value_or(platform::HTTPURLResponse{}).statusCode));
        const auto session = std::make_shared<testing::FakeSession>();
        std::vector<OpenOrdersResult> results;
        // The service has been destroyed when the answer comes.
        Services{session}.openCarts().getOpenOrders([&](OpenOrdersResult r) { results.push_back(r); });
        session->started.at(0).complete(data, response, transportError);
        ASSERT_EQ(results.size(), 1u);
        EXPECT_EQ(results[0].response.has_value(), hasResponse);
        EXPECT_EQ(results[0].error, error);
        EXPECT_EQ(results[0].httpStatusCode, response ? response->statusCode : 0);
    }
}

} // namespace quillet
