#include "Network/Url/UrlCreator.hpp"

#include <gtest/gtest.h>

namespace quillet {

using namespace std::string_literals;

TEST(UrlCreator, PercentEncodesWhatAPathAndAQueryDoNotAllow) {
    const struct {
        std::string path;
        std::vector<UrlQueryItem> query;
        std::string encoded;
    } cases[] = {
        {"/quillet-bff/Az09-._~!$&'()*+,;=:@/x", {}, "/quillet-bff/Az09-._~!$&'()*+,;=:@/x"},
        {"/a b/100%25?x#y/ñ/🛒", {}, "/a%20b/100%2525%3Fx%23y/%C3%B1/%F0%9F%9B%92"},
        {"/\"<>[\\]^`{|}/a\0b\r\n\x7f"s, {}, "/%22%3C%3E%5B%5C%5D%5E%60%7B%7C%7D/a%00b%0D%0A%7F"},
        {"/.././/./a/..", {}, "/.././/./a/.."},
        {"", {}, ""},
        // Nothing in a query passes for a separator.
        {"/p",
         {{"status", "OPEN"}, {"z", "a b+c&d=e;f#g%h/?"}, {"a=&", "ñ"}, {"empty", ""}, {"n", "\0\n"s}},
         "/p?status=OPEN&z=a%20b%2Bc%26d%3De%3Bf%23g%25h/?&a%3D%26=%C3%B1&empty=&n=%00%0A"},
    };
    for (const auto& [path, query, encoded] : cases) {
        EXPECT_EQ(UrlCreator().createUrl("gateway.test", path, query).value().pathAndQuery, encoded);
    }
}

TEST(UrlCreator, RefusesWhatIsNoAddress) {
    const auto refused = std::unexpected(NetworkServiceError::invalidUrl);
    for (const char* host : {"", "https://gateway.test", "gateway.test/", "gateway.test:443",
                             "user@gateway.test", "gateway test", "gateway.test\r\nX: y", "gateway..test",
                             "-gateway.test", "[::1]", "gatewäy.test"}) {
        EXPECT_EQ(UrlCreator().createUrl(host, "/"), refused) << host;
    }
    for (const char* path : {"path", "/\xff", "/\xed\xa0\x80"}) {
        EXPECT_EQ(UrlCreator().createUrl("gateway.test", path), refused) << path;
    }
    EXPECT_EQ(UrlCreator().createUrl("gateway.test", "/", {{"status", "\xc3"}}), refused);
}

} // namespace quillet
