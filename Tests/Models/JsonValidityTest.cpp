#include "Models/Bodies.hpp"
#include "Platform/Json/Decoder.hpp"
#include "Quillet/Checkout.hpp"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace quillet::tests {

using namespace std::string_view_literals;

/// Reads only a key that no body has, so that the whole body is skipped.
struct Indifferent {
    std::optional<std::string> text;
    std::optional<std::int64_t> number;
};

} // namespace quillet::tests

namespace quillet {
template <>
inline constexpr auto platform::jsonFields<tests::Indifferent> =
    std::tuple{platform::json::Field{"text", &tests::Indifferent::text},
               platform::json::Field{"number", &tests::Indifferent::number}};
}

namespace quillet::tests {

std::string nested(std::size_t depth) {
    // The enclosing object is one level.
    return R"({"ignored":)" + std::string(depth - 1, '[') + std::string(depth - 1, ']') + "}";
}

TEST(JsonValidityTest, RefusesBadJsonAlsoWhereNobodyReads) {
    const std::string bad[] = {"01",
                               "1.",
                               ".5",
                               "+1",
                               "-",
                               "1e",
                               "1e+",
                               "0x1",
                               "1 2",
                               "1\"\"",
                               "NaN",
                               "tru",
                               "truex",
                               "nulll",
                               "True",
                               "'a'",
                               "[1,]",
                               "[,1]",
                               "[1 2]",
                               "[1",
                               "1]",
                               "[1}",
                               "{\"a\":1,}",
                               "{\"a\"}",
                               "{\"a\" 1}",
                               "{a:1}",
                               "{1:1}",
                               "{,}",
                               "{\"a\":1 \"b\":2}",
                               "{\"a\\x\":1}",
                               "{\"a\":1]",
                               "\"\\x\"",
                               "\"\\u12\"",
                               "\"\\u12g4\"",
                               "\"\\ud800\"",
                               "\"\\udc00\"",
                               "\"\\ud800\\u0041\"",
                               "\"\\ud800x\"",
                               "\"\n\"",
                               "\"\t\"",
                               "\"\x01\"",
                               "\"",
                               "\"\\\"",
                               "\"\xff\"",
                               "\"\xc0\x80\"",
                               "\"\xed\xa0\x80\"",
                               "\"\xf4\x90\x80\x80\"",
                               "\"\xe2\x82\"",
                               "\\",
                               "\\\"\"",
                               "\f1",
                               "1\f",
                               "\x1a",
                               "//",
                               "1/**/",
                               std::string("1\0", 2),
                               std::string("\0", 1),
                               "",
                               "1}{",
                               "{}}",
                               "\"a\"b",
                               "\"a\"\"b\""};
    for (const std::string& value : bad) {
        SCOPED_TRACE(value);
        for (const std::string& body : {R"({"ignored":)" + value + "}", R"({"text":)" + value + "}",
                                        R"({"number":)" + value + R"(,"z":[{}]})", value}) {
            const auto decoded = platform::json::decode<Indifferent>(body);
            ASSERT_FALSE(decoded) << body;
            EXPECT_EQ(decoded.error(), platform::DecodingError()) << body;
        }
    }
}

TEST(JsonValidityTest, PassesOverEverythingThatJsonAllows) {
    const std::string good[] = {"0",
                                "-0",
                                "-0.0e-0",
                                "1E+9",
                                "1e999999999",
                                "[]",
                                "{}",
                                "[[],{}]",
                                " [ 1 , 2 ] ",
                                "{\"\":{\"\":[]}}",
                                "{\"\\u0061\\\\\":1}",
                                "\"\\ud83d\\ude00\\b\\f\\n\\r\\t\\/\\\\\\\"\"",
                                "\"\\u0000\"",
                                "\"\xf0\x9f\x98\x80\"",
                                "true",
                                "false",
                                "null",
                                "\r\n\t1 "};
    for (const std::string& value : good) {
        EXPECT_TRUE(platform::json::decode<Indifferent>(R"({"ignored":)" + value + "}")) << value;
    }
    const auto text = platform::json::decode<Indifferent>(
        R"({"text":"\ud83d\ude00\u20ac\u00e9\b\f\n\r\t\/\\\"","number":-9223372036854775808})");
    EXPECT_EQ(text->text, "😀€é\b\f\n\r\t/\\\"");
    EXPECT_EQ(text->number, std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(platform::json::decode<Indifferent>(R"({"number":9223372036854775808})").error().expected,
              "integer");
}

TEST(JsonValidityTest, LimitsNestingTo512) {
    EXPECT_TRUE(platform::json::decode<Indifferent>(nested(512)));
    EXPECT_FALSE(platform::json::decode<Indifferent>(nested(513)));
    EXPECT_FALSE(platform::json::decode<Indifferent>(std::string(1000000, '[')));
    std::string objects;
    for (int i = 0; i < 100000; ++i) {
        objects += R"({"":)";
    }
    EXPECT_FALSE(platform::json::decode<Indifferent>(objects));
}

/// The decoder must agree with another validator about whether a damaged body is JSON.
template <typename Response>
void expectAgreement(const std::string& body) {
    const auto response = Response::create(body);
    const bool valid = response || !(response.error() == typename Response::Error(platform::DecodingError()));
    ASSERT_EQ(valid, nlohmann::json::accept(body)) << body;
}

TEST(JsonValidityTest, AgreesWithAnotherValidatorOnEveryMutationOfABody) {
    constexpr auto substitutes = "\"\\,:{}[]0-.eu \n\0\x1f\x80\xc3\xff"sv;
    for (std::size_t i = 0; i < checkoutJson.size(); ++i) {
        ASSERT_NO_FATAL_FAILURE(expectAgreement<CheckoutResponse>(checkoutJson.substr(0, i)));
        std::string body = checkoutJson;
        for (int bit = 0; bit < 8; ++bit) {
            body[i] = static_cast<char>(checkoutJson[i] ^ (1 << bit));
            ASSERT_NO_FATAL_FAILURE(expectAgreement<CheckoutResponse>(body));
        }
        for (const char substitute : substitutes) {
            body[i] = substitute;
            ASSERT_NO_FATAL_FAILURE(expectAgreement<CheckoutResponse>(body));
        }
        body = checkoutJson;
        ASSERT_NO_FATAL_FAILURE(expectAgreement<CheckoutResponse>(body.erase(i, 1)));
    }
}

} // namespace quillet::tests
