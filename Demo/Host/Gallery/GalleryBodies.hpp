#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace demo {

/// The body of an answer to a checkout with this verdict and these products' statuses.
[[nodiscard]] std::string checkoutBody(std::string_view verdict,
                                       const std::vector<std::string_view>& statuses);

} // namespace demo
