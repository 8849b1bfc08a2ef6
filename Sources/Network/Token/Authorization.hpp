#pragma once

#include <string>

namespace quillet {

/// Who the consultant is, as every call says it.
struct Authorization {
    /// The signed token.
    std::string jwt;
    /// The identity provider that issued the consultant's access token, as the host named it.
    std::string provider;

    bool operator==(const Authorization&) const = default;
};

} // namespace quillet
