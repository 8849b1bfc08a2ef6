#include "Fuzzing/Reference/Tree.hpp"
#include "Models/Bodies.hpp"
#include "Models/Decoding.hpp"
#include "Network/Errors/ErrorFields.hpp"

namespace quillet::tests {

using platform::DecodingError;
using Reason = DecodingError::Reason;
using Json = nlohmann::ordered_json;

/// Values that stand in a field's place, and as what they may be taken there, in the words of errors.
struct Values {
    std::vector<std::string_view> takenAs;
    std::vector<std::string> json;
};

const Values values[] = {
    {{}, {"null", "{}", R"({"a":[[]]})", "[7]", "1e10000", "1e999999999"}},
    {{"boolean"}, {"true", "false"}},
    {{"text"}, {R"("text")", R"("7")", R"("")"}},
    {{"array"}, {"[]"}},
    {{"unsigned integer", "integer", "decimal number"},
     {"0", "-0", "1.0", "1e2", "9007199254740991", "9007199254740993", "9223372036854775807"}},
    {{"unsigned integer", "decimal number"}, {"9223372036854775808", "18446744073709551615"}},
    {{"integer", "decimal number"}, {"-1", "-9223372036854775808"}},
    {{"decimal number"},
     {"2.5", "1.00000000000000000000000000000000000000000000000001", "18446744073709551616",
      "-9223372036854775809"}},
};

const std::string noJson[] = {"02",      "-02",     "00.5",        "2 2",      "2x",   "+2",       "tru",
                              "\"a\n\"", "\"\\x\"", "\"\\ud800\"", "\"\xff\"", "[2,]", "{\"a\":}", ""};

template <typename Record>
concept HasFields = (std::tuple_size_v<std::remove_cvref_t<decltype(platform::jsonFields<Record>)>> > 0);

template <typename T>
struct Inside {
    using Type = T;
};
template <typename T>
struct Inside<std::optional<T>> : Inside<T> {};

template <typename Record, typename Field>
using Member = std::remove_cvref_t<decltype(std::declval<Record>().*std::declval<Field>().member)>;

/// The error of a record without members: its first required field is missing.
template <HasFields Record>
DecodingError errorOfEmpty(const std::string& path) {
    std::optional<DecodingError> error;
    const auto note = [&]<typename Field>(const Field& field) {
        using T = Member<Record, Field>;
        if (!platform::json::isOptional<T> && !error) {
            error = {Reason::missingKey, path + "." + std::string(field.key),
                     std::string(platform::json::expectedOf<T>())};
        }
    };
    std::apply([&](const auto&... field) { (note(field), ...); }, platform::jsonFields<Record>);
    return error.value();
}

/// The error of a value at a field of type T; nothing if it is taken.
template <typename T>
std::optional<DecodingError> errorOf(const std::string& json, const Values& some, const std::string& path) {
    const auto expected = platform::json::expectedOf<T>();
    if (std::ranges::count(some.takenAs, expected) > 0) {
        return std::nullopt;
    }
    if constexpr (HasFields<T>) {
        if (json.starts_with('{')) {
            return errorOfEmpty<T>(path);
        }
    }
    const bool element = platform::json::isList<T> && json == "[7]";
    return DecodingError{Reason::unexpectedValue, path + (element ? "[0]" : ""),
                         element ? "object" : std::string(expected)};
}

/// Puts each value in the place of each field of a body, one at a time.
template <typename Response>
class Fields {
public:
    explicit Fields(const std::string& body) : body_(Json::parse(body)) {}

    std::size_t tryAll() {
        tryFields<typename Inside<Response>::Type>(body_, "");
        return cases_;
    }

private:
    template <HasFields Record>
    void tryFields(Json& object, const std::string& path) {
        const auto tryEach = [&]<typename Field>(const Field& field) {
            const std::string key(field.key);
            tryField<Member<Record, Field>>(object, key, path.empty() ? key : path + "." + key);
        };
        std::apply([&](const auto&... field) { (tryEach(field), ...); }, platform::jsonFields<Record>);
    }

    template <typename T>
    void tryField(Json& object, const std::string& key, const std::string& path) {
        using Own = typename Inside<T>::Type;
        constexpr bool optional = platform::json::isOptional<T>;
        Json own = std::exchange(object[key], "PLACE");
        const std::string body = body_.dump();
        const auto with = [&](const std::string& json) { return replaced(body, "\"PLACE\"", json); };
        for (const auto& some : values) {
            for (const auto& json : some.json) {
                const bool absent = optional && json == "null";
                expect(with(json), absent ? std::nullopt : errorOf<Own>(json, some, path));
            }
        }
        for (const auto& json : noJson) {
            expect(with(json), DecodingError());
        }
        object.erase(key);
        using platform::json::expectedOf;
        expect(body_.dump(), optional ? std::nullopt
                                      : std::optional(DecodingError{Reason::missingKey, path,
                                                                    std::string(expectedOf<Own>())}));
        Json& again = object[key] = std::move(own);
        if constexpr (HasFields<Own>) {
            if (again.is_object()) {
                tryFields<Own>(again, path);
            }
        } else if constexpr (platform::json::isList<Own>) {
            if (!again.empty()) {
                tryFields<typename Own::value_type>(again.back(),
                                                    path + "[" + std::to_string(again.size() - 1) + "]");
            }
        }
    }

    void expect(const std::string& body, const std::optional<DecodingError>& error) {
        ++cases_;
        const auto decoded = decodeInWindows<Response>(body);
        ASSERT_EQ(decoded ? std::nullopt : std::optional(decoded.error()), error)
            << body << "\n"
            << (decoded ? "is taken" : decoded.error().description());
        // The value that is taken is the one that stands there.
        ASSERT_STREQ(fuzzing::disagreement(body, decoded), nullptr) << body;
    }

    Json body_;
    std::size_t cases_ = 0;
};

TEST(FieldsTest, EachFieldTakesItsKindOfValueAndNamesItselfInTheErrorOfAnyOther) {
    const std::size_t cases = Fields<OpenOrdersResponse>(openOrdersJson).tryAll() +
                              Fields<std::optional<OrderResponse>>(orderJson).tryAll() +
                              Fields<CheckoutResponse>(checkoutJson).tryAll() +
                              Fields<ClientError>(clientErrorJson).tryAll() +
                              Fields<ServerError>(serverErrorJson).tryAll();
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
}

} // namespace quillet::tests
