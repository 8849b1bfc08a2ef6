#pragma once

namespace quillet {

/// A request that could not be formed.
enum class NetworkServiceError {
    /// Host, path or query do not make an address.
    invalidUrl,
};

} // namespace quillet
