#include "Models/Decoding.hpp"
#include "Support/Thorough.hpp"

#include <gmock/gmock.h>

#include <iterator>
#include <random>
#include <sstream>
#include <vector>

namespace quillet::tests {

using platform::DecodingError;

std::string repeated(std::string_view text, std::size_t times) {
    std::string all;
    for (std::size_t i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

std::vector<std::string> words(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

TEST(JsonTest, RefusesWhatIsNoJsonAlsoWhereNobodyReads) {
    auto bad =
        words(R"(01 1. .5 +1 - 1e 1e+ 0x1 1"" NaN tru truex nulll True 'a' [1,] [,1] [1 1] [1} {"a":1,} {"a"}
        {a:1} {1:1} {,} {"a\x":1} {"a":1] "\x" "\u12" "\u12g4" " "\" \ \"" // 1/**/ 1}{ {}} "a"b "a""b")");
    for (const char* value :
         {"", "1 2", "[1 2]", "{\"a\" 1}", "{\"a\":1 \"b\":2}", "\"\n\"", "\"\x01\"", "\f1", "1\f", "\x1a"}) {
        bad.emplace_back(value);
    }
    for (const std::string& value : bad) {
        SCOPED_TRACE(value);
        // What stands within the last bytes is read in another way than what has more behind it.
        for (const std::string& body :
             {R"({"ignored":)" + value + "}", R"({"text":)" + value + "}", value,
              R"({"ignored":)" + value + R"(,"z":[{}]})", R"({"number":)" + value + R"(,"z":[{}]})",
              R"({"counts":[)" + value + ",1,2,3,4,5]}"}) {
            EXPECT_EQ(decodeInWindows<Some>(body), std::unexpected(DecodingError())) << body;
        }
    }
    for (const auto& value :
         words(R"(0 -0 -0.0e-0 1E+9 1e999999999 [] {} [[],{}] {"":{"":[]}} {"\u0061\\":1} true
        false null)")) {
        EXPECT_TRUE(decodeInWindows<Some>("\r\n{\t\"ignored\" : " + value + " } ")) << value;
    }
}

TEST(JsonTest, TakesTextsThatAreUnicodeAndNothingElse) {
    const std::string nul("a\0b", 3);
    const std::pair<std::string, std::string> good[] = {
        {R"(\ud83d\ude00\u20ac\u00E9\b\f\n\r\t\/\\\")", "😀€é\b\f\n\r\t/\\\""},
        {"\xf0\x9f\x98\x80\\uffff\\udbff\\udfff", "😀\xef\xbf\xbf\xf4\x8f\xbf\xbf"},
        {"\xef\xbb\xbf\\ufeff", "\xef\xbb\xbf\xef\xbb\xbf"},
        {R"(a\u0000b)", nul}};
    for (const auto& [bytes, text] : good) {
        EXPECT_EQ(decodeInWindows<Some>(R"({"text":")" + bytes + "\"}").value().text, text) << bytes;
    }
    // Halves of pairs; what is longer than needed, beyond the last character, cut, or of another encoding.
    auto bad = words(R"(\ud800 \udc00 \ud800x \ud800\u0041 \ud800\ud800 \udc00\udc00)");
    for (const char* bytes : {"\xed\xa0\x80", "\xed\xa0\xbd\xed\xb8\x80", "\xc0\x80", "\xc1\xbf",
                              "\xe0\x80\xaf", "\xf0\x80\x80\xaf", "\xf4\x90\x80\x80", "\xf8\x88\x80\x80\x80",
                              "\xe2\x82", "\x80", "\xff", "\xe9"}) {
        bad.emplace_back(bytes);
    }
    bad.push_back(nul);
    for (const std::string& bytes : bad) {
        const std::string quoted = '"' + bytes + '"';
        for (const std::string& body :
             {R"({"text":)" + quoted + "}", R"({"ignored":)" + quoted + "}", "{" + quoted + ":1}"}) {
            EXPECT_EQ(decodeInWindows<Some>(body), std::unexpected(DecodingError())) << body;
        }
    }
    // Before the value a byte-order mark is no white space.
    EXPECT_EQ(decodeInWindows<Some>("\xef\xbb\xbf{}"), std::unexpected(DecodingError()));
}

TEST(JsonTest, TakesTheFirstOfSeveralValuesWithOneKeyHoweverItIsSpelt) {
    const std::pair<std::string, std::optional<std::string>> bodies[] = {
        {R"({"text":"first","text":"second"})", "first"},
        {R"({"text":"first","te\u0078t":"second"})", "first"},
        {R"({"\u0074ext":"first","text":"second"})", "first"},
        {R"({"\u0074ext":"first","\u0074\u0065xt":"second"})", "first"},
        {R"({"text":"first","number":1,"text":7,"text":[{"text":null}]})", "first"},
        {R"({"number":1,"text":null,"text":"second"})", std::nullopt},
    };
    for (const auto& [body, text] : bodies) {
        EXPECT_EQ(decodeInWindows<Some>(body).value().text, text) << body;
    }
    // What does not count has to be JSON, and does not mend what does.
    EXPECT_EQ(decodeInWindows<Some>(R"({"text":"first","text":01})"), std::unexpected(DecodingError()));
    EXPECT_EQ(decodeInWindows<Some>(R"({"text":7,"text":"second"})").error().path, "text");
}

TEST(JsonTest, LimitsNestingTo512AndNotTheNumberOfKeys) {
    const auto nested = [](std::string_view open, std::size_t depth, std::string_view close) {
        // The enclosing object is one level.
        return R"({"ignored":)" + repeated(open, depth - 1) + "0" + repeated(close, depth - 1) + "}";
    };
    EXPECT_TRUE(decodeInWindows<Some>(nested("[", 512, "]")));
    EXPECT_TRUE(decodeInWindows<Some>(nested("{\"\":", 512, "}")));
    EXPECT_FALSE(decodeInWindows<Some>(nested("[", 513, "]")));
    const std::size_t many = testing::thorough(100'000, 1'000'000);
    for (const std::string_view open : {"[", "{\"\":", "[{\"text\":"}) {
        EXPECT_EQ(platform::json::decode<Some>(repeated(open, many)), std::unexpected(DecodingError()));
        EXPECT_EQ(platform::json::decode<Some>("{\"text\":" + repeated(open, many)),
                  std::unexpected(DecodingError()));
    }
    EXPECT_FALSE(platform::json::decode<Some>(nested("[", many, "]")));
    for (const std::string_view key : {R"("key":0,)", R"("k\u0065y":0,)", R"("number":7,)"}) {
        const auto body = "{" + repeated(key, many) + R"("text":"read"})";
        EXPECT_EQ(platform::json::decode<Some>(body).value().text, "read");
    }
    RecordProperty("cases", static_cast<int>(many));
}

TEST(JsonTest, ReadsBodiesThatAreManyWindowsLong) {
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
    EXPECT_EQ(decodeInWindows<Some>(body)->text, "read");
    body.back() = ']';
    EXPECT_FALSE(platform::json::decode<Some>(body));
}

} // namespace quillet::tests
