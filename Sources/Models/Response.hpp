#pragma once

#include <optional>
#include <string>

namespace quillet {

/// A record that can be decoded from the body of a response. `create` fails for an absent body and for one
/// that does not decode.
template <typename Record>
concept Response = requires(const std::optional<std::string>& data) {
    {Record::create(data).has_value()};
    typename Record::Error;
};

} // namespace quillet
