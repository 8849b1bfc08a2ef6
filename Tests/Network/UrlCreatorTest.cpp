#include "Network/Url/UrlCreator.hpp"

#include <gtest/gtest.h>

namespace quillet {

using namespace std::string_literals;

TEST(UrlCreator, PercentEncodesWhatAPathDoesNotAllow) {
    const struct {
        std::string path;
        std::string encoded;
    } cases[] = {
        {"/quillet-bff/Az09-._~!$&'()*+,;=:@/x", "/quillet-bff/Az09-._~!$&'()*+,;=:@/x"},
        {"/a b", "/a%20b"},
        {"/100%25?x#y", "/100%2525%3Fx%23y"},
        {"/ñ/🛒", "/%C3%B1/%F0%9F%9B%92"},
        {"/\"<>[\\]^`{|}", "/%22%3C%3E%5B%5C%5D%5E%60%7B%7C%7D"},
        {"/a\0b\r\n\x7f"s, "/a%00b%0D%0A%7F"},
        {"/.././/./a/..", "/.././/./a/.."},
        {"", ""},
    };
    for (const auto& [path, encoded] : cases) {
        SCOPED_TRACE(path);
        const auto url = UrlCreator().createUrl("gateway.test", path);
        ASSERT_TRUE(url);
        EXPECT_EQ(url->absoluteString(), "https://gateway.test" + encoded);
    }
}

TEST(UrlCreator, LetsNothingInAQueryPassForASeparator) {
    const std::vector<UrlQueryItem> items = {
        {"status", "OPEN"}, {"z", "a b+c&d=e;f#g%h/?"}, {"a=&", "ñ"}, {"empty", ""}, {"n", "\0\n"s}};
    const auto url = UrlCreator().createUrl("gateway.test", "/p", items);
    ASSERT_TRUE(url);
    EXPECT_EQ(url->pathAndQuery,
              "/p?status=OPEN&z=a%20b%2Bc%26d%3De%3Bf%23g%25h/?&a%3D%26=%C3%B1&empty=&n=%00%0A");
}

TEST(UrlCreator, RefusesWhatIsNoAddress) {
    const auto created = [](const std::string& host, const std::string& path, const std::string& value) {
        return UrlCreator().createUrl(host, path, {{"status", value}});
    };
    const auto refused = std::unexpected(NetworkServiceError::invalidUrl);
    for (const std::string host : {"", "https://gateway.test", "gateway.test/", "gateway.test:443",
                                   "user@gateway.test", "gateway test", "gateway.test\r\nX: y",
                                   "gateway..test", "-gateway.test", "[::1]", "gatewäy.test"}) {
        EXPECT_EQ(created(host, "/", "OPEN"), refused) << host;
    }
    for (const std::string path : {"path", "/\xff", "/\xed\xa0\x80"}) {
        EXPECT_EQ(created("gateway.test", path, "OPEN"), refused) << path;
    }
    EXPECT_EQ(created("gateway.test", "/", "\xc3"), refused);
}

} // namespace quillet
