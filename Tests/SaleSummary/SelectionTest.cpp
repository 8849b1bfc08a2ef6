#include "SaleSummary/Fakes.hpp"
#include "SaleSummary/UseCases/SaleSummaryUseCaseFactory.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillet::testing {

namespace {

enum Outcome { success, otherRegistered, alreadySubmitted, timeout, noConnection, genericError };

OrderResult answered(std::int64_t status, std::optional<ServiceError> error) {
    return {.response = {}, .error = std::move(error), .httpStatusCode = status};
}

} // namespace

TEST(SaleSummarySelection, IsDecidedByTheAssociationAlone) {
    const auto other = "ERROR_CART_OTHER_CONSULTANT";
    const auto submitted = "ERROR_CART_ALREADY_SUBMITTED";
    ServerError hidden = refusal("other text");
    hidden.error.response.message = other;
    const struct {
        const char* name;
        std::optional<OrderResult> association;
        Outcome chosen;
    } cases[] = {
        {"no result at all", std::nullopt, genericError},
        {"a response", OrderResult{OrderResponse{}, {}, 200}, success},
        {"a response with an error", OrderResult{OrderResponse{}, refusal(other), 422}, success},
        {"neither response nor error", answered(200, {}), genericError},
        {"other consultant", answered(422, refusal(other)), otherRegistered},
        {"already submitted", answered(422, refusal(submitted)), alreadySubmitted},
        {"lower case", answered(422, refusal("error_cart_other_consultant")), genericError},
        {"longer text", answered(422, refusal(std::string(submitted) + " ")), genericError},
        {"the code one level deeper", answered(422, hidden), genericError},
        {"as the client's error", answered(422, ClientError{other, other, 422, "/"}), genericError},
        {"another status", answered(409, refusal(other)), genericError},
        {"504 with a refusal", answered(504, refusal(submitted)), timeout},
        {"504 without an error", answered(504, {}), timeout},
        {"504 without a connection",
         answered(504, transportError(platform::URLError::Code::notConnectedToInternet)), timeout},
        {"no connection", answered(0, transportError(platform::URLError::Code::notConnectedToInternet)),
         noConnection},
        {"no connection with a status",
         answered(422, transportError(platform::URLError::Code::notConnectedToInternet)), noConnection},
        {"a status that looks like no connection", answered(0, HttpStatusCodeError{-1009}), genericError},
        {"timed out on the way", answered(0, transportError(platform::URLError::Code::timedOut)),
         genericError},
        {"500", answered(500, refusal("boom")), genericError},
    };
    const OpenOrdersResult openOrders[] = {
        {.response = OpenOrdersResponse{}, .error = {}, .httpStatusCode = 200},
        {.response = {}, .error = HttpStatusCodeError{504}, .httpStatusCode = 504}};
    for (const auto& [name, association, chosen] : cases) {
        SCOPED_TRACE(name);
        for (const OpenOrdersResult& open : openOrders) {
            const auto useCases = SaleSummaryUseCaseFactory().createAllUseCases(
                {{},
                 association ? shared(*association) : nullptr,
                 shared(open),
                 std::make_shared<RecordingAnalytics>(makeLog())});
            ASSERT_EQ(useCases.size(), 6u);
            const auto first = std::ranges::find_if(
                useCases, &SaleSummaryUseCase::canShowContent,
                [](const auto& useCase) -> auto& { return *useCase; });
            EXPECT_EQ(first - useCases.begin(), chosen);
        }
    }
}

} // namespace quillet::testing
