#include "Fuzzing/Reference/Tree.hpp"
#include "Models/Bodies.hpp"
#include "Models/Decoding.hpp"
#include "Network/Errors/ErrorFields.hpp"

namespace quillet::tests {

using platform::DecodingError;
using Reason = DecodingError::Reason;
using Json = nlohmann::ordered_json;

/// What stands in a field's place, and as what it may be taken there, in the words of errors.
struct Value {
    std::string json;
    std::vector<std::string_view> takenAs;
};

const std::vector<std::string_view> anyNumber{"unsigned integer", "integer", "decimal number"};
const std::vector<std::string_view> aboveSigned{"unsigned integer", "decimal number"};
const std::vector<std::string_view> belowZero{"integer", "decimal number"};

const Value values[] = {
    {"null", {}},
    {"true", {"boolean"}},
    {"\"text\"", {"text"}},
    {"\"7\"", {"text"}},
    {"{}", {}},
    {R"({"a":[[]]})", {}},
    {"[]", {"array"}},
    {"[7]", {}},
    {"0", anyNumber},
    {"-0", anyNumber},
    {"1.0", anyNumber},
    {"1e2", anyNumber},
    {"9007199254740991", anyNumber},
    {"9007199254740993", anyNumber},
    {"9223372036854775807", anyNumber},
    {"9223372036854775808", aboveSigned},
    {"18446744073709551615", aboveSigned},
    {"18446744073709551616", {"decimal number"}},
    {"-1", belowZero},
    {"-9223372036854775808", belowZero},
    {"-9223372036854775809", {"decimal number"}},
    {"2.5", {"decimal number"}},
    {"1.00000000000000000000000000000000000000000000000001", {"decimal number"}},
    {"1e10000", {}},
    {"1e999999999", {}},
};

const std::string noJson[] = {"02",      "-02",     "00.5",        "2 2",      "2x",   "+2",       "tru",
                              "\"a\n\"", "\"\\x\"", "\"\\ud800\"", "\"\xff\"", "[2,]", "{\"a\":}", ""};

template <typename Record>
concept HasFields = std::tuple_size_v<std::remove_cvref_t<decltype(platform::jsonFields<Record>)>> >
0;

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
std::optional<DecodingError> errorOf(const Value& value, const std::string& path) {
    const auto expected = platform::json::expectedOf<T>();
    if (std::ranges::count(value.takenAs, expected) > 0) {
        return std::nullopt;
    }
    if constexpr (HasFields<T>) {
        if (value.json.starts_with('{')) {
            return errorOfEmpty<T>(path);
        }
    }
    const bool element = platform::json::isList<T> && value.json == "[7]";
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
        for (const auto& value : values) {
            const bool absent = optional && value.json == "null";
            expect(with(value.json), absent ? std::nullopt : errorOf<Own>(value, path));
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
