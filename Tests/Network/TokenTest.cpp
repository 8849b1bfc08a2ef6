#include "Network/Token/HmacSha256Scrivener.hpp"
#include "Network/Token/JWTCreator.hpp"

#include <gtest/gtest.h>

namespace quillet {

namespace {

JWTCreator creator(std::string accessToken, std::string secretKey = "527308") {
    return {{}, {std::move(accessToken)}, std::move(secretKey), std::make_shared<HmacSha256Scrivener>()};
}

} // namespace

TEST(JWTCreator, SignsAsTheOpensslCommandLineDoes) {
    const std::string header = "eyJhbGciOiJIUzI1NiIsInR5cCI6IkpXVCJ9.";
    const struct {
        std::string accessToken;
        std::string rest;
    } cases[] = {
        {"", "eyJhY2Nlc3NfdG9rZW4iOiIifQ.jFnVmRSvgVKRGNLzKGHS9NVTGBhtlLzVjXMrab71FnA"},
        {"a/b", "eyJhY2Nlc3NfdG9rZW4iOiJhXC9iIn0.q011hDR_l0msn8lerifv1bx9A2fsFyqFKT3yDieTL8s"},
        {"ñandú", "eyJhY2Nlc3NfdG9rZW4iOiLDsWFuZMO6In0.aCFSWWhvm8PtTkfZo6wi0LdmCpVZtNoCA4rJy_Zdxtg"},
        {"quote\"\\back",
         "eyJhY2Nlc3NfdG9rZW4iOiJxdW90ZVwiXFxiYWNrIn0.Uqk4G_uD0_dIGDOF164xrMdOfCZQS2RsAZhrAcb1u_0"},
    };
    for (const auto& [accessToken, rest] : cases) {
        SCOPED_TRACE(accessToken);
        EXPECT_EQ(creator(accessToken).createJSONWebToken(), header + rest);
    }
}

// RFC 4231, test case 2.
TEST(HmacSha256Scrivener, AgreesWithTheStandardsVector) {
    EXPECT_EQ(HmacSha256Scrivener().signatureBase64String("what do ya want for nothing?", "Jefe"),
              "W9zBRr9gdU5qBCQmCJV1x1oAPwidJzmDnexYuWTsOEM");
}

TEST(JWTCreator, KeepsTheBase64UrlAlphabetForAnyToken) {
    for (std::size_t length = 0; length < 70; ++length) {
        std::string accessToken;
        for (std::size_t i = 0; i < length; ++i) {
            accessToken += static_cast<char>((i * 7 + length) % 127 + 1);
        }
        const auto token = creator(accessToken).createJSONWebToken();
        ASSERT_TRUE(token);
        EXPECT_EQ(token->find_first_of("+/="), std::string::npos);
        EXPECT_EQ(token->size() - token->rfind('.') - 1, 43u);
    }
}

TEST(JWTCreator, FailsForTextThatIsNotUtf8) {
    const auto badToken = creator("\xc3(").createJSONWebToken();
    ASSERT_FALSE(badToken);
    ASSERT_TRUE(std::holds_alternative<platform::EncodingError>(badToken.error()));
    EXPECT_EQ(std::get<platform::EncodingError>(badToken.error()).codingPath, "access_token");
    const auto badSecret = creator("a", "\xff").createJSONWebToken();
    ASSERT_FALSE(badSecret);
    EXPECT_EQ(std::get<HmacSha256Error>(badSecret.error()),
              HmacSha256Error::couldNotTransformSecretKeyInData);
    EXPECT_EQ(HmacSha256Scrivener().signatureBase64String("\xff", "527308"),
              std::unexpected(HmacSha256Error::couldNotTransformContentToSignInData));
}

} // namespace quillet
