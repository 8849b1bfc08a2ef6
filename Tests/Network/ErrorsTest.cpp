#include "Quillet/Errors.hpp"
#include "Quillet/Orders.hpp"

#include <gtest/gtest.h>

namespace quillet {

namespace {

const HttpErrorResponse inner{422, "inner", "Unprocessable"};
const ServerError serverError{{inner, 422, "ERROR_CART_ALREADY_SUBMITTED"}, 500, "/p"};
const ClientError clientError{"d", "Not/Found", -404, "/p"};

} // namespace

TEST(ServiceError, DescribesItself) {
    EXPECT_EQ(description(ServiceError(clientError)), "HTTP Code: -404\nNot/Found");
    EXPECT_EQ(description(inner), "HTTP Code: 422\ninner\nUnprocessable");
    EXPECT_EQ(description(ServiceError(serverError)), "HTTP Code: 422\nERROR_CART_ALREADY_SUBMITTED");
    EXPECT_EQ(description(ServiceError(NetworkServiceError::invalidUrl)), "Invalid URL");
    EXPECT_EQ(description(ServiceError(HttpStatusCodeError{500})),
              "The operation couldn’t be completed. (Quillet.HttpStatusCodeError error 1.)");
    EXPECT_EQ(description(ResponseCodingError::emptyData),
              "The operation couldn’t be completed. (Quillet.ResponseCodingError error 0.)");
}

TEST(ServiceError, HasAPlatformCodeOnlyWhenTheExchangeFailed) {
    EXPECT_EQ(platformErrorCode(platform::URLError{platform::URLError::Code::notConnectedToInternet, ""}),
              -1009);
    for (const ServiceError& error : {ServiceError(HttpStatusCodeError{-1009}), ServiceError(clientError),
                                      ServiceError(NetworkServiceError::invalidUrl)}) {
        EXPECT_EQ(platformErrorCode(error), std::nullopt);
    }
}

} // namespace quillet
