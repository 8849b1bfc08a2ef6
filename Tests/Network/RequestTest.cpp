#include "Network/Request/URLRequestWrapper.hpp"
#include "Platform/Json/JSONEncoder.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace quillet {

using namespace std::string_literals;

TEST(URLRequestWrapper, JoinsASecondValueOfAHeader) {
    const auto request = URLRequestFactory().create({});
    EXPECT_FALSE(request->httpMethod());
    EXPECT_TRUE(request->addValue("a", "Accept"));
    EXPECT_TRUE(request->addValue("x\ty ñ", "Other"));
    EXPECT_TRUE(request->addValue("b", "accept"));
    EXPECT_EQ(request->urlRequest().headerFields.all(),
              (std::vector<platform::HTTPHeaderField>{{"Accept", "a,b"}, {"Other", "x\ty ñ"}}));
}

TEST(URLRequestWrapper, RefusesAHeaderThatWouldSplitTheRequest) {
    for (const auto& [value, name] : {std::pair{"a\r\nX-Evil: 1"s, "Token"s},
                                      {"a\nb", "Token"},
                                      {"a\0b"s, "Token"},
                                      {"a", "To ken"},
                                      {"a", "Token\r\n"},
                                      {"a", "Token:"},
                                      {"a", ""}}) {
        SCOPED_TRACE(name);
        const auto request = URLRequestFactory().create({});
        const auto added = request->addValue(value, name);
        ASSERT_FALSE(added);
        EXPECT_EQ(added.error().codingPath, name == "Token" ? "Token" : "header name");
        EXPECT_TRUE(request->urlRequest().headerFields.all().empty());
    }
}

TEST(URLRequestWrapper, WritesABodyAsCompactJsonWithEscapedSlashes) {
    const auto request = URLRequestFactory().create({});
    const platform::JSONValue::Object parameters = {
        {"z/", "a/b\"\\\b\f\n\r\t\x01\x1f\x7f ñ🛒\0"s},
        {"a", platform::JSONValue::Object{{"id", std::numeric_limits<std::uint64_t>::max()}, {"low", -1}}},
        {"none", platform::JSONValue::Object{}}};
    EXPECT_TRUE(request->addToHttpBody(parameters));
    EXPECT_EQ(request->urlRequest().httpBody,
              R"({"z\/":"a\/b\"\\\b\f\n\r\t\u0001\u001f)"
              "\x7f"
              R"( ñ🛒\u0000","a":{"id":18446744073709551615,"low":-1},"none":{}})");
}

TEST(URLRequestWrapper, KeepsItsBodyWhenAnotherCannotBeEncoded) {
    const auto request = URLRequestFactory().create({});
    ASSERT_TRUE(request->addToHttpBody({{"a", "b"}}));
    EXPECT_EQ(request->addToHttpBody({{"consultant", platform::JSONValue::Object{{"id", "\xff"}}}}),
              std::unexpected(platform::EncodingError{"consultant.id"}));
    EXPECT_FALSE(request->addToHttpBody({{"\xff", 1}}));
    EXPECT_EQ(request->urlRequest().httpBody, R"({"a":"b"})");
}

} // namespace quillet
