#pragma once

#include "Models/Cycle.hpp"
#include "Models/Json/Field.hpp"

#include <cstdint>
#include <optional>

namespace quillet {

/// The consultant as the back end reports her.
struct Consultant {
    /// The consultant's code.
    std::uint64_t identifier = 0;
    /// Her current sales cycle; absent when the back end sends none.
    std::optional<Cycle> cycle;

    bool operator==(const Consultant&) const = default;
};

template <>
inline constexpr auto jsonFields<Consultant> = std::tuple{
    json::Field{"id", &Consultant::identifier},
    json::Field{"cycle", &Consultant::cycle},
};

} // namespace quillet
