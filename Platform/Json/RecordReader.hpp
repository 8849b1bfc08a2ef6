#pragma once

#include "Platform/Json/Field.hpp"
#include "Platform/Json/Reader.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace quillet::platform::json {

/// Reads records by their field tables, and lists and optionals of readable types.
class RecordReader : public Reader {
public:
    using Reader::Reader;

    template <typename T>
    bool read(std::optional<T>& value) {
        if (cursor_.peek() == 'n') {
            value.reset();
            return cursor_.passLiteral("null");
        }
        return read(value.emplace());
    }

    template <typename T>
    bool read(std::vector<T>& list) {
        std::size_t& usualLength = usualLengths_[field_];
        if (cursor_.peek() != '[') {
            return passUnexpected(expectedOf<std::vector<T>>());
        }
        bool more = cursor_.open() && cursor_.first(']');
        if (more) {
            list.reserve(usualLength + usualLength / 8 + 1);
        }
        bool good = true;
        for (; more; more = cursor_.next(']')) {
            if (!good) {
                cursor_.skip();
            } else if (!read(list.emplace_back(blank<T>))) {
                good = false;
                prefixError(list.size() - 1);
            }
            if (cursor_.invalid()) {
                return false;
            }
        }
        usualLength = list.size();
        return good && !cursor_.invalid();
    }

    template <typename T>
    bool read(T& value) {
        if constexpr (std::tuple_size_v<decltype(jsonFields<T>)> == 0) {
            return Reader::read(value);
        } else {
            constexpr auto count = std::tuple_size_v<decltype(jsonFields<T>)>;
            return readRecord(value, std::make_index_sequence<count>());
        }
    }

private:
    static constexpr std::size_t mostFields = 64;

    /// State of reading one object.
    struct Members {
        /// Whether the cursor is at the key of another member.
        bool more = false;
        /// One bit for each field of the table whose key was seen.
        std::uint64_t seen = 0;
        /// Index of the first field in the table that could not be read.
        std::size_t failed = mostFields;
        /// Index of the field whose value is at the cursor, if its key was already read.
        std::size_t named = mostFields;
    };

    template <typename Record, std::size_t... indexes>
    bool readRecord(Record& record, std::index_sequence<indexes...>) {
        static_assert(sizeof...(indexes) <= mostFields);
        if (cursor_.peek() != '{') {
            return passUnexpected(expectedOf<Record>());
        }
        Members members;
        members.more = cursor_.open() && cursor_.first('}');
        while (members.more) {
            // Each round tries the fields in the table's order against the current member. Members that come
            // in that order need a single round.
            const std::uint64_t before = members.seen;
            (tryField<indexes>(record, members), ...);
            if (members.more && members.seen == before) {
                passOrName<Record, indexes...>(members);
            }
        }
        constexpr std::uint64_t required = ((isRequired<Record, indexes> ? bit(indexes) : 0) | ...);
        if ((members.seen & required) != required) {
            (reportMissing<Record, indexes>(members), ...);
        }
        return members.failed == mostFields && !cursor_.invalid();
    }

    template <std::size_t index, typename Record>
    void tryField(Record& record, Members& members) {
        if (!members.more || (members.seen & bit(index))) {
            return;
        }
        const bool here =
            members.named == mostFields ? cursor_.takeKey(quotedKey<Record, index>) : members.named == index;
        if (here) {
            readField<index>(record, members);
        }
    }

    /// Skips a member whose key is not in the table or was seen before. If the key is in the table after
    /// decoding its escapes, reads the key only and sets `named`.
    template <typename Record, std::size_t... indexes>
    void passOrName(Members& members) {
        std::string_view key;
        if (!passKey(key)) {
            members.more = false;
            return;
        }
        ((!(members.seen & bit(indexes)) && key == std::get<indexes>(jsonFields<Record>).key
              ? members.named = indexes
              : 0),
         ...);
        if (members.named == mostFields) {
            cursor_.skip();
            members.more = nextMember();
        }
    }

    template <std::size_t index, typename Record>
    void readField(Record& record, Members& members) {
        constexpr auto field = std::get<index>(jsonFields<Record>);
        members.seen |= bit(index);
        if (members.failed < index) {
            cursor_.skip();
        } else {
            field_ = index;
            if (!read(record.*field.member) && !cursor_.invalid()) {
                members.failed = index;
                prefixError(field.key);
            }
        }
        members.named = mostFields;
        members.more = nextMember();
    }

    bool nextMember() { return !cursor_.invalid() && cursor_.next('}'); }

    template <typename Record, std::size_t index>
    void reportMissing(Members& members) {
        if (isRequired<Record, index> && !(members.seen & bit(index)) && index < members.failed) {
            constexpr auto field = std::get<index>(jsonFields<Record>);
            members.failed = index;
            fail(DecodingError::Reason::missingKey, expectedOf<Member<Record, index>>());
            prefixError(field.key);
        }
    }

    template <typename Record, std::size_t index>
    using Member =
        std::remove_cvref_t<decltype(std::declval<Record&>().*std::get<index>(jsonFields<Record>).member)>;
    template <typename Record, std::size_t index>
    static constexpr bool isRequired = !isOptional<Member<Record, index>>;

    template <typename Record, std::size_t index>
    static constexpr auto quotedKey = [] {
        constexpr std::string_view key = std::get<index>(jsonFields<Record>).key;
        std::array<char, key.size() + 2> quoted{};
        quoted.front() = quoted.back() = '"';
        std::copy(key.begin(), key.end(), quoted.begin() + 1);
        return quoted;
    }();

    /// New elements are copies of it: GCC clears a record that it value-initialises by an instruction that
    /// takes longer than this copy.
    template <typename T>
    static inline const T blank{};

    static constexpr std::uint64_t bit(std::size_t index) { return std::uint64_t{1} << index; }

    /// For each field, the length of the list that was last read for it. It predicts the next list's length,
    /// so that memory is reserved once.
    std::array<std::size_t, mostFields> usualLengths_{};
    /// Index of the field that is being read.
    std::size_t field_ = 0;
};

} // namespace quillet::platform::json
