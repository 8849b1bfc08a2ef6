#pragma once

#include "Platform/Screens/QuickViewController.hpp"
#include "Quillet/QuilletNavigationDelegate.hpp"

#include <memory>
#include <string>

namespace demo {

/// The module's first screen with workers that send no request: the association is refused as a server error
/// of status 422 with the given code. The services never deliver such a result, but the screen has an answer
/// to it.
[[nodiscard]] std::shared_ptr<quillet::platform::QuickViewController>
refusedOrderScreen(const std::string& code,
                   const std::weak_ptr<quillet::QuilletNavigationDelegate>& navigation);

} // namespace demo
