#include "Models/Bodies.hpp"
#include "Models/RecordFields.hpp"
#include "Platform/Json/Decoder.hpp"
#include "Quillet/Checkout.hpp"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <array>
#include <random>

namespace quillet::tests {

using namespace std::string_view_literals;

/// Reads only a key that no body has, so that the whole body is skipped.
struct Indifferent {
    std::optional<std::string> text;
    std::optional<std::int64_t> number;

    bool operator==(const Indifferent&) const = default;
};

struct Counts {
    std::vector<std::uint64_t> counts;
};

} // namespace quillet::tests

namespace quillet {
template <>
inline constexpr auto platform::jsonFields<tests::Indifferent> =
    std::tuple{platform::json::Field{"text", &tests::Indifferent::text},
               platform::json::Field{"number", &tests::Indifferent::number}};
template <>
inline constexpr auto platform::jsonFields<tests::Counts> =
    std::tuple{platform::json::Field{"counts", &tests::Counts::counts}};
} // namespace quillet

namespace quillet::tests {

/// Decodes the body with windows of several sizes, of which the smallest end at each comma, and expects the
/// same of all.
template <typename Record>
std::expected<Record, platform::DecodingError> decodeInWindows(const std::string& body) {
    auto decoded = platform::json::decode<Record>(body);
    for (const std::size_t window : {1, 20, 64, 300}) {
        EXPECT_EQ(platform::json::decode<Record>(body, window), decoded)
            << body << " in windows of " << window;
    }
    return decoded;
}

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
        // What stands within the last bytes is read in another way than what has more behind it.
        for (const std::string& body :
             {R"({"ignored":)" + value + "}", R"({"text":)" + value + "}", value,
              R"({"ignored":)" + value + R"(,"z":[{}]})", R"({"number":)" + value + R"(,"z":[{}]})"}) {
            const auto decoded = decodeInWindows<Indifferent>(body);
            ASSERT_FALSE(decoded) << body;
            EXPECT_EQ(decoded.error(), platform::DecodingError()) << body;
        }
        EXPECT_FALSE(platform::json::decode<Counts>(R"({"counts":[)" + value + ",1,2,3,4,5]}"));
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
        EXPECT_TRUE(decodeInWindows<Indifferent>(R"({"ignored":)" + value + "}")) << value;
    }
    const auto text = platform::json::decode<Indifferent>(
        R"({"text":"\ud83d\ude00\u20ac\u00e9\b\f\n\r\t\/\\\"","number":-9223372036854775808})");
    EXPECT_EQ(text->text, "😀€é\b\f\n\r\t/\\\"");
    EXPECT_EQ(text->number, std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(platform::json::decode<Indifferent>(R"({"number":9223372036854775808})").error().expected,
              "integer");
}

TEST(JsonValidityTest, LimitsNestingTo512) {
    EXPECT_TRUE(decodeInWindows<Indifferent>(nested(512)));
    EXPECT_FALSE(decodeInWindows<Indifferent>(nested(513)));
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
    ASSERT_NO_FATAL_FAILURE(decodeInWindows<Response>(body));
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

TEST(JsonValidityTest, ReadsBodiesThatAreManyWindowsLong) {
    // Strings that end in a comma, are longer than a window, or hold quotes mislead where a window is to end.
    const std::string texts[] = {R"(,)",
                                 R"(\\,)",
                                 R"(\",\")",
                                 R"(,\",)",
                                 std::string(100000, 'a'),
                                 R"(\\)",
                                 "",
                                 std::string(70000, ','),
                                 R"(\u00e9, é)",
                                 R"(a","b)"};
    std::mt19937 random;
    std::string body = R"({"ignored":[)";
    for (int i = 0; i < 3000; ++i) {
        const std::string& text = texts[random() % (i % 100 == 0 ? 10 : 4)];
        body += '"' + text + "\"," + std::to_string(random()) + (i % 7 == 0 ? " ,\n" : ",");
    }
    body += R"(0],"text":"read"})";
    EXPECT_EQ(decodeInWindows<Indifferent>(body)->text, "read");
    body.back() = ']';
    EXPECT_FALSE(platform::json::decode<Indifferent>(body));
}

TEST(JsonValidityTest, ReadsWholeNumbersOfEveryLength) {
    std::mt19937_64 random;
    std::string body = R"({"counts":[)";
    std::vector<std::uint64_t> expected;
    for (int i = 0; i < 20000; ++i) {
        expected.push_back(random() >> (random() % 64));
        body +=
            std::to_string(expected.back()) + std::array{",", ".0,", ".00000,", "e0,", " ,"}[random() % 5];
    }
    body.back() = ']';
    const auto decoded = platform::json::decode<Counts>(body + "}");
    ASSERT_TRUE(decoded) << decoded.error().description();
    EXPECT_EQ(decoded->counts, expected);
}

} // namespace quillet::tests
