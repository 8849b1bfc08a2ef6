#include "Quillet/Errors.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "SaleSummary/UseCases/SaleSummaryUseCaseFactory.hpp"

#include <gtest/gtest.h>

namespace quillet::testing {

namespace {

/// In the order in which they are asked.
enum Outcome { success, otherConsultant, alreadySubmitted, timeout, noConnection, genericError };

OrderResult answered(std::int64_t status, std::optional<ServiceError> error) {
    return {.response = {}, .error = std::move(error), .httpStatusCode = status};
}

/// A refusal as decoded from a server error.
ServerError refusal(const std::string& message) {
    return {.error = {.response = {}, .status = 422, .message = message}, .statusCode = 422, .path = "/"};
}

ServerError hidden(const std::string& message) {
    ServerError error = refusal("other text");
    error.error.response.message = message;
    return error;
}

} // namespace

TEST(Outcomes, AreChosenByTheAssociationAlone) {
    const std::string other = "ERROR_CART_OTHER_CONSULTANT";
    const std::string submitted = "ERROR_CART_ALREADY_SUBMITTED";
    const platform::URLError offline{platform::URLError::Code::notConnectedToInternet, ""};
    const platform::URLError timedOut{platform::URLError::Code::timedOut, ""};
    const struct {
        const char* name;
        std::optional<OrderResult> association;
        Outcome chosen;
    } cases[] = {
        {"no result at all", std::nullopt, genericError},
        {"a response", OrderResult{OrderResponse{}, {}, 200}, success},
        {"a response with an error", OrderResult{OrderResponse{}, refusal(other), 422}, success},
        {"neither response nor error", answered(200, {}), genericError},
        {"other consultant", answered(422, refusal(other)), otherConsultant},
        {"already submitted", answered(422, refusal(submitted)), alreadySubmitted},
        {"longer text", answered(422, refusal(submitted + " ")), genericError},
        {"the code one level deeper", answered(422, hidden(other)), genericError},
        {"as the client's error", answered(422, ClientError{other, other, 422, "/"}), genericError},
        {"another status", answered(409, refusal(other)), genericError},
        {"504 with a refusal", answered(504, refusal(submitted)), timeout},
        {"504 without a connection", answered(504, offline), timeout},
        {"no connection", answered(0, offline), noConnection},
        {"no connection with a status", answered(422, offline), noConnection},
        {"a status that looks like no connection", answered(0, HttpStatusCodeError{-1009}), genericError},
        {"timed out on the way", answered(0, timedOut), genericError},
    };
    const OpenOrdersResult openOrders[] = {
        {.response = OpenOrdersResponse{}, .error = {}, .httpStatusCode = 200},
        {.response = {}, .error = offline, .httpStatusCode = 504}};
    for (const auto& [name, association, chosen] : cases) {
        for (const OpenOrdersResult& open : openOrders) {
            const auto useCases = SaleSummaryUseCaseFactory().createAllUseCases(
                {{},
                 association ? std::make_shared<const OrderResult>(*association) : nullptr,
                 std::make_shared<const OpenOrdersResult>(open),
                 std::make_shared<RecordingAnalytics>(makeLog())});
            const auto first =
                std::ranges::find_if(useCases, [](const auto& one) { return one->canShowContent(); });
            EXPECT_EQ(first - useCases.begin(), chosen) << name;
        }
    }
}

} // namespace quillet::testing
