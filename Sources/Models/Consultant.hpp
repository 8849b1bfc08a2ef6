#pragma once

#include "Models/Cycle.hpp"
#include "Platform/Json/Field.hpp"

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
inline constexpr auto platform::jsonFields<Consultant> = std::tuple{
    platform::json::Field{"id", &Consultant::identifier},
    platform::json::Field{"cycle", &Consultant::cycle},
};

} // namespace quillet
