#include "Fuzzing/Reference/Base64Url.hpp"
#include "Fuzzing/Target.hpp"
#include "Quillet/Authorization.hpp"

#include <nlohmann/json.hpp>

namespace quillet::fuzzing {

/// Another writer refuses what is not UTF-8 by throwing.
static bool isUtf8(const std::string& text) {
    try {
        return !nlohmann::json(text).dump().empty();
    } catch (const nlohmann::json::type_error&) {
        return false;
    }
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
