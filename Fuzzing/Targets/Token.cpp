#include "Fuzzing/Reference/Base64Url.hpp"
#include "Fuzzing/Target.hpp"
#include "Quillet/Authorization.hpp"

#include <nlohmann/json.hpp>

namespace quillet::fuzzing {

/// Another writer puts U+FFFD in the place of what is not UTF-8, or leaves that out.
static bool isUtf8(const std::string& text) {
    using Handler = nlohmann::json::error_handler_t;
    const nlohmann::json value(text);
    return value.dump(-1, ' ', false, Handler::replace) == value.dump(-1, ' ', false, Handler::ignore);
}

static const Target target("token", [](const std::string& accessToken) {
    const auto authorization = authorize(accessToken, "idp", "527308");
    require(authorization.has_value() == isUtf8(accessToken), "UTF-8 makes a token, and nothing else does");
    if (!authorization) {
        require(description(authorization.error()) == "Cannot be encoded: access_token",
                "the error names the field and nothing of its content");
        return;
    }
    const std::string& token = authorization->jwt;
    const auto first = token.find('.');
    const auto last = token.rfind('.');
    const auto payload = fromBase64Url(token.substr(first + 1, last - first - 1));
    const auto signature = fromBase64Url(token.substr(last + 1));
    require(payload && signature && signature->size() == 32, "the form is a token's");
    require(nlohmann::json::parse(*payload) == nlohmann::json{{"access_token", accessToken}},
            "the payload is what was signed");
});

} // namespace quillet::fuzzing
