#include "Models/Bodies.hpp"
#include "Models/Decoding.hpp"
#include "Support/Thorough.hpp"

#include <gmock/gmock.h>

#include <random>
#include <vector>

namespace quillet::tests {

using platform::DecodingError;

/// Puts each value where nobody reads it, where it is read, and last: what stands within the last bytes is
/// read in another way than what has more behind it.
void expectJson(bool isJson, const std::vector<std::string>& values) {
    for (const std::string& value : values) {
        for (const std::string& body :
             {R"({"ignored":)" + value + "}", R"({"text":)" + value + "}",
              "\r\n{\t\"ignored\" : " + value + R"( , "z":[{}]})", R"({"number":)" + value + R"(,"z":[{}]})",
              R"({"counts":[)" + value + ",1,2,3,4,5]}"}) {
            const auto record = decoded<Everything>(body);
            EXPECT_EQ(record || record.error() != DecodingError(), isJson) << body;
        }
    }
}

TEST(JsonTest, IsJudgedAlsoWhereNobodyReads) {
    auto bad =
        words(R"(01 1. .5 +1 - 1e 1e+ 0x1 1"" NaN tru truex nulll True 'a' [1,] [,1] [1 1] [1} {"a":1,} {"a"}
        {a:1} {1:1} {,} {"a\x":1} {"a":1] "\x" "\u12" "\u12g4" " "\" \ \"" // 1/**/ 1}{ {}} "a"b "a""b")");
    bad.insert(bad.end(), {"", "1 2", "[1 2]", "{\"a\" 1}", "{\"a\":1 \"b\":2}", "\"\n\"", "\"\x01\"", "\f1",
                           "1\f", "\x1a"});
    expectJson(false, bad);
    for (const std::string& value : bad) {
        EXPECT_EQ(decoded<Everything>(value), std::unexpected(DecodingError())) << value;
    }
    expectJson(true, words(R"(0 -0 -0.0e-0 1E+9 1e999999999 [] {} [[],{}] {"":{"":[]}} {"\u0061\\":1} true
        false null)"));
}

TEST(JsonTest, TakesTextsThatAreUnicodeAndNothingElse) {
    const auto quoted = [](std::vector<std::string> texts) {
        std::ranges::for_each(texts, [](std::string& text) { text = '"' + text + '"'; });
        return texts;
    };
    expectJson(true, quoted({R"(\ud83d\ude00\u20ac\u00E9\b\f\n\r\t\/\\\")", R"(a\u0000b)",
                             "\xf0\x9f\x98\x80\\uffff\\udbff\\udfff", "\xef\xbb\xbf\\ufeff"}));
    // Halves of pairs; what is longer than needed, beyond the last character, cut, or of another encoding.
    expectJson(false, quoted(words(R"(\ud800 \udc00 \ud800x \ud800\u0041 \ud800\ud800 \udc00\udc00)")));
    expectJson(false, quoted({"\xed\xa0\x80", "\xed\xa0\xbd\xed\xb8\x80", "\xc0\x80", "\xc1\xbf",
                              "\xe0\x80\xaf", "\xf0\x80\x80\xaf", "\xf4\x90\x80\x80", "\xf8\x88\x80\x80\x80",
                              "\xe2\x82", "\x80", "\xff", "\xe9", std::string("a\0b", 3)}));
    EXPECT_EQ(decoded<Everything>("{\"\xff\":1}"), std::unexpected(DecodingError()));
    // Before the value a byte-order mark is no white space.
    EXPECT_EQ(decoded<Everything>("\xef\xbb\xbf{}"), std::unexpected(DecodingError()));
}

// Another parser tells all members, of which the first counts.
TEST(JsonTest, TakesTheFirstOfSeveralValuesWithOneKeyInAnyOrderAndSpelling) {
    for (const char* body :
         {R"({"text":"first","text":"second"})", R"({"text":"first","te\u0078t":"second"})",
          R"({"\u0074ext":"first","text":"second"})", R"({"\u0074ext":"first","\u0074\u0065xt":"second"})",
          R"({"text":"first","number":1,"text":7,"text":[{"text":null}]})",
          R"({"number":1,"text":null,"text":"second"})", R"({"text":"first","text":01})",
          R"({"text":7,"text":"second"})",
          R"({"counts":[1],"number":2,"\u0063ount":3,"text":"all","count":4})"}) {
        static_cast<void>(decoded<Everything>(body));
    }
}

TEST(JsonTest, LimitsNestingTo512AndNotTheNumberOfKeys) {
    const auto nested = [](std::string_view open, std::size_t depth, std::string_view close) {
        // The enclosing object is one level.
        return R"({"ignored":)" + repeated(open, depth - 1) + "0" + repeated(close, depth - 1) + "}";
    };
    EXPECT_TRUE(decoded<Everything>(nested("[", 512, "]")));
    EXPECT_TRUE(decoded<Everything>(nested("{\"\":", 512, "}")));
    EXPECT_FALSE(decoded<Everything>(nested("[", 513, "]")));
    const std::size_t many = testing::thorough(100'000, 1'000'000);
    for (const std::string_view open : {"[", "{\"\":", "[{\"text\":"}) {
        EXPECT_EQ(platform::json::decode<Everything>(repeated(open, many)), std::unexpected(DecodingError()));
        EXPECT_EQ(platform::json::decode<Everything>("{\"text\":" + repeated(open, many)),
                  std::unexpected(DecodingError()));
    }
    EXPECT_FALSE(platform::json::decode<Everything>(nested("[", many, "]")));
    for (const std::string_view key : {R"("key":0,)", R"("k\u0065y":0,)", R"("number":7,)"}) {
        const auto body = "{" + repeated(key, many) + R"("text":"read"})";
        EXPECT_EQ(platform::json::decode<Everything>(body).value().text, "read");
    }
    RecordProperty("cases", static_cast<int>(many));
}

TEST(JsonTest, ReadsBodiesThatAreManyWindowsLong) {
    // Strings that end in a comma, are longer than a window, or hold quotes mislead where a window is to end.
    auto texts = words(R"(, \\, \",\" ,\", \\ \u00e9,é a","b)");
    texts.insert(texts.end(), {"", std::string(100'000, 'a'), std::string(70'000, ',')});
    std::mt19937 random;
    std::string body = R"({"ignored":[)";
    for (int i = 0; i < 3000; ++i) {
        const std::string& text = texts[random() % (i % 100 == 0 ? texts.size() : 4)];
        body += '"' + text + "\"," + std::to_string(random()) + (i % 7 == 0 ? " ,\n" : ",");
    }
    body += R"(0],"text":"read"})";
    EXPECT_EQ(decoded<Everything>(body)->text, "read");
    body.back() = ']';
    EXPECT_FALSE(platform::json::decode<Everything>(body));
}

} // namespace quillet::tests
