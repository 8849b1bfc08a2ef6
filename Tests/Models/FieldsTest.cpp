#include "Models/Bodies.hpp"
#include "Models/Decoding.hpp"
#include "Network/Errors/ErrorFields.hpp"
#include "Support/Thorough.hpp"

#include <nlohmann/json.hpp>
#include <simdjson.h>

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
        std::ranges::for_each(bodies, decoded<Response>);
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

// The other parser takes no number that is as large.
TEST(FieldsTest, NamesTheFieldOfANumberThatIsTooLargeForAny) {
    EXPECT_EQ(decoded<OpenOrdersResponse>(R"({"consultant":{"id":1e10000},"carts":[]})").error().path,
              "consultant.id");
    EXPECT_EQ(decoded<Everything>(R"({"amount":1e10000})").error().path, "amount");
}

/// The kernels of simdjson that this processor can run. Each finds the tokens in a way of its own, and a
/// process usually runs but the best.
std::vector<const simdjson::implementation*> kernels() {
    const auto& available = simdjson::get_available_implementations();
    std::vector<const simdjson::implementation*> kernels(available.begin(), available.end());
    std::erase_if(kernels, [](const auto* kernel) { return !kernel->supported_by_runtime_system(); });
    return kernels;
}

/// Damages a body in every way of a kind at every place, and compares what is made of it with what another
/// parser does. In the quick form every 37th body.
template <typename Response>
std::size_t tryDamage(const std::string& whole) {
    using namespace std::string_view_literals;
    std::size_t number = 0;
    std::size_t cases = 0;
    const auto tryBody = [&](std::size_t from, std::size_t length, std::string_view with) {
        // One failure tells enough.
        if (++number % testing::thorough(37, 1) == 0 && !::testing::Test::HasFailure()) {
            static_cast<void>(decoded<Response>(std::string(whole).replace(from, length, with)));
            ++cases;
        }
    };
    for (std::size_t i = 0; i < whole.size(); ++i) {
        tryBody(i, whole.size() - i, "");
        tryBody(i, 1, "");
        for (const char& byte : "\"\\,:{}[]0-.eu \n\0\x1f\x80\xc3\xff"sv) {
            tryBody(i, 1, {&byte, 1});
            tryBody(i, 0, {&byte, 1});
        }
        for (int bit = 0; bit < 8; ++bit) {
            const char flipped = static_cast<char>(whole[i] ^ (1 << bit));
            tryBody(i, 1, {&flipped, 1});
        }
    }
    return cases;
}

TEST(DamageTest, EveryKernelAgreesWithAnotherParserOnDamagedBodies) {
    const simdjson::implementation* const usual = simdjson::get_active_implementation();
    std::size_t cases = 0;
    for (const auto* const kernel : kernels()) {
        simdjson::get_active_implementation() = kernel;
        cases += tryDamage<std::optional<OrderResponse>>(replaced(orderJson, R"({"id":1})", consultantJson)) +
                 tryDamage<CheckoutResponse>(checkoutJson) + tryDamage<ClientError>(clientErrorJson) +
                 tryDamage<ServerError>(serverErrorJson);
    }
    simdjson::get_active_implementation() = usual;
    RecordProperty("cases", static_cast<int>(cases));
}

} // namespace quillet::tests
