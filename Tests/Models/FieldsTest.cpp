#include "Models/Bodies.hpp"
#include "Models/Decoding.hpp"
#include "Network/Errors/ErrorFields.hpp"

#include <nlohmann/json.hpp>

#include <set>

namespace quillet::tests {

using Json = nlohmann::ordered_json;

/// Values of each kind and at the bounds of each, then texts that are no JSON.
std::vector<std::string> values() {
    auto all = words(
        R"(null {} {"a":[[]]} [] [7] true false "text" "7" "" 0 -0 1.0 1e2 2.5 -1 9007199254740991 9007199254740993
        9223372036854775807 9223372036854775808 -9223372036854775808 -9223372036854775809 18446744073709551615
        18446744073709551616 1.00000000000000000000000000000000000000000000000001
        02 -02 00.5 2x +2 tru "\x" "\ud800" [2,] {"a":})");
    all.insert(all.end(), {"2 2", "\"a\n\"", "\"\xff\"", ""});
    return all;
}

/// Puts each value in the place of each member of a part of a body, and leaves the member out.
template <typename Response>
std::size_t tryMembers(const Json& body, Json& part) {
    std::size_t cases = 0;
    for (const auto& [key, member] : part.items()) {
        if (part.is_array() && &member != &part.back()) {
            continue;
        }
        Json own = std::exchange(member, "PLACE");
        const std::string text = body.dump();
        std::set<std::string> bodies;
        if (part.is_object()) {
            bodies.insert(replaced(text, '"' + key + R"(":"PLACE")", R"("":0)"));
        }
        for (const auto& value : values()) {
            bodies.insert(replaced(text, R"("PLACE")", value));
        }
        std::ranges::for_each(bodies, expectAgreement<Response>);
        member = std::move(own);
        cases += bodies.size() + (member.is_structured() ? tryMembers<Response>(body, member) : 0);
    }
    return cases;
}

template <typename Response>
std::size_t tryBody(const std::string& text) {
    Json body = Json::parse(text);
    return tryMembers<Response>(body, body);
}

TEST(FieldsTest, EachFieldTakesItsKindOfValueAndNamesItselfInTheErrorOfAnyOther) {
    const std::size_t cases = tryBody<OpenOrdersResponse>(openOrdersJson) +
                              tryBody<std::optional<OrderResponse>>(orderJson) +
                              tryBody<CheckoutResponse>(checkoutJson) +
                              tryBody<ClientError>(clientErrorJson) + tryBody<ServerError>(serverErrorJson);
    RecordProperty("cases", static_cast<int>(cases));
}

/// The value with the members of each object in reverse order, and each key spelt with an escape.
std::string respelt(const Json& value) {
    if (!value.is_structured()) {
        return value.dump();
    }
    std::string all;
    for (const auto& [key, member] : value.items()) {
        if (value.is_object()) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(key.at(0)));
            const std::string own = '"' + (escaped + key.substr(1)) + "\" : " + respelt(member);
            all = own + (all.empty() ? "" : " , ") + all;
        } else {
            all += (all.empty() ? "" : ",") + respelt(member);
        }
    }
    return value.is_object() ? "{" + all + "}" : "[" + all + "]";
}

TEST(FieldsTest, ReadsKeysInAnyOrderAndSpelling) {
    const auto expected = platform::json::decode<OpenOrdersResponse>(openOrdersJson);
    EXPECT_TRUE(expected);
    EXPECT_EQ(decodeInWindows<OpenOrdersResponse>(respelt(Json::parse(openOrdersJson))), expected);
}

TEST(FieldsTest, ReportsTheFirstFieldOfTheTableWhereverItStands) {
    const auto pathOf = [](const std::string& body) {
        return decodeInWindows<OpenOrdersResponse>(body).error().path;
    };
    EXPECT_EQ(pathOf(R"({"carts":[{}],"consultant":{"id":"x","cycle":7}})"), "consultant.id");
    EXPECT_EQ(pathOf(R"({"carts":7})"), "consultant");
    EXPECT_EQ(pathOf(R"({"carts":[{"status":7,"cartUuid":8}, 9],"consultant":{"id":1}})"),
              "carts[0].cartNumber");
    EXPECT_EQ(pathOf(R"({"carts":7,"consultant":7,})"), "");
    // The other parser takes no number that is as large.
    EXPECT_EQ(pathOf(R"({"consultant":{"id":1e10000},"carts":[]})"), "consultant.id");
    EXPECT_EQ(decodeInWindows<Some>(R"({"amount":1e10000})").error().path, "amount");
}

} // namespace quillet::tests
