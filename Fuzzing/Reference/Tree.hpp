#pragma once

#include "Fuzzing/Reference/Date.hpp"
#include "Fuzzing/Reference/Number.hpp"
#include "Models/RecordFields.hpp"
#include "Platform/Json/Decoder.hpp"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace quillet::fuzzing {

using platform::DecodingError;

/// A body as another parser reads it: all members, in their order, and numbers as texts.
struct Tree {
    enum class Kind { nothing, no, yes, number, text, list, object };

    Kind kind = Kind::nothing;
    std::string text;
    /// An object's values or a list's elements; their keys are empty.
    std::vector<Tree> members;
    std::string key;
};

/// Makes a tree of what nlohmann's parser tells.
class TreeBuilder : public nlohmann::json_sax<nlohmann::json> {
    using enum Tree::Kind;

public:
    Tree tree;
    std::size_t depth = 0;
    /// The parser ends at a number that is too large for a double, which JSON allows.
    bool numberTooLarge = false;

    bool null() override { return add(nothing); }
    bool boolean(bool value) override { return add(value ? yes : no); }
    bool number_integer(std::int64_t value) override { return add(number, std::to_string(value)); }
    bool number_unsigned(std::uint64_t value) override { return add(number, std::to_string(value)); }
    bool number_float(double, const std::string& digits) override { return add(number, digits); }
    bool string(std::string& value) override { return add(text, value); }
    bool binary(nlohmann::json::binary_t&) override { return false; }
    bool start_object(std::size_t) override { return open(object); }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(list); }
    bool end_array() override { return close(); }
    bool key(std::string& key) override {
        key_ = key;
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception& error) override {
        constexpr int outOfRange = 406;
        numberTooLarge = error.id == outOfRange;
        return false;
    }

private:
    bool add(Tree::Kind kind, std::string content = {}) {
        Tree value{kind, std::move(content), {}, std::exchange(key_, {})};
        if (open_.empty()) {
            tree = std::move(value);
        } else {
            open_.back()->members.push_back(std::move(value));
        }
        return true;
    }
    bool open(Tree::Kind kind) {
        add(kind);
        open_.push_back(open_.empty() ? &tree : &open_.back()->members.back());
        depth = std::max(depth, open_.size());
        return true;
    }
    bool close() {
        open_.pop_back();
        return true;
    }

    std::vector<Tree*> open_;
    std::string key_;
};

/// What stands in the tree as a value of one of the types without members.
template <typename T>
std::optional<T> valueOf(const Tree& tree) {
    if constexpr (std::same_as<T, bool>) {
        const bool either = tree.kind == Tree::Kind::yes || tree.kind == Tree::Kind::no;
        return either ? std::optional(tree.kind == Tree::Kind::yes) : std::nullopt;
    } else if constexpr (std::integral<T> || std::same_as<T, platform::Decimal>) {
        const auto number = tree.kind == Tree::Kind::number ? paperNumber(tree.text) : std::nullopt;
        if constexpr (std::integral<T>) {
            return number ? whole<T>(*number) : std::nullopt;
        } else {
            const auto shorter = number ? rounded(*number, T::maximumDigits) : PaperNumber();
            const bool fits = number && std::abs(shorter.exponent) <= T::maximumExponent;
            return fits ? T::parse(shorter.text()) : std::nullopt;
        }
    } else if (tree.kind != Tree::Kind::text) {
        return std::nullopt;
    } else if constexpr (std::same_as<T, Date>) {
        return referenceDate(tree.text);
    } else if constexpr (platform::json::HasTextForm<T>) {
        return platform::json::TextForm<T>::read(tree.text);
    } else {
        return tree.text;
    }
}

/// What the decoder has to make of the tree. Throws the error of the first field in the order of the tables
/// that cannot hold what stands there; of several members with its key the first counts.
template <typename T>
T fromTree(const Tree& tree, const std::string& path = "") {
    const auto require = [&](bool holds) {
        if (!holds) {
            throw DecodingError{DecodingError::Reason::unexpectedValue, path,
                                std::string(platform::json::expectedOf<T>())};
        }
    };
    if constexpr (platform::json::isOptional<T>) {
        return tree.kind == Tree::Kind::nothing ? T() : T(fromTree<typename T::value_type>(tree, path));
    } else if constexpr (platform::json::isList<T>) {
        require(tree.kind == Tree::Kind::list);
        T list;
        for (const Tree& element : tree.members) {
            const std::string place = path + "[" + std::to_string(list.size()) + "]";
            list.push_back(fromTree<typename T::value_type>(element, place));
        }
        return list;
    } else if constexpr (std::tuple_size_v<std::remove_cvref_t<decltype(platform::jsonFields<T>)>> > 0) {
        require(tree.kind == Tree::Kind::object);
        T record;
        const auto read = [&]<typename Value>(const std::string& key, Value& value) {
            const std::string place = path + (path.empty() ? "" : ".") + key;
            const auto found = std::ranges::find(tree.members, key, &Tree::key);
            if (found != tree.members.end()) {
                value = fromTree<Value>(*found, place);
            } else if (!platform::json::isOptional<Value>) {
                throw DecodingError{DecodingError::Reason::missingKey, place,
                                    std::string(platform::json::expectedOf<Value>())};
            }
        };
        std::apply([&](const auto&... field) { (read(std::string(field.key), record.*field.member), ...); },
                   platform::jsonFields<T>);
        return record;
    } else {
        auto value = valueOf<T>(tree);
        require(value.has_value());
        return *std::move(value);
    }
}

/// What is wrong with how a body is decoded, by what the other parser makes of it; null if nothing is. The
/// smallest of the windows in which it is decoded end at each comma.
template <typename T>
const char* disagreement(const std::string& body) {
    const auto decoded = platform::json::decode<T>(body);
    for (const std::size_t window : {1, 20, 64, 300}) {
        if (platform::json::decode<T>(body, window) != decoded) {
            return "it depends on the window";
        }
    }
    TreeBuilder builder;
    bool valid = nlohmann::json::sax_parse(body, &builder);
    // What the other parser takes and JSON does not allow: a byte-order mark, and a NUL for the end. And our
    // own limit.
    if (body.starts_with("\xEF\xBB\xBF") || body.find('\0') != body.npos ||
        builder.depth > platform::json::Cursor::maximumDepth) {
        valid = false;
    } else if (builder.numberTooLarge) {
        return nullptr;
    }
    std::expected<T, DecodingError> expected = std::unexpected(DecodingError());
    try {
        if (valid) {
            expected = fromTree<T>(builder.tree);
        }
    } catch (const DecodingError& error) {
        expected = std::unexpected(error);
    }
    return decoded == expected ? nullptr : "another value is read, or another error is told";
}

} // namespace quillet::fuzzing
