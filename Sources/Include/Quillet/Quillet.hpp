#pragma once

/// The front door of Quillet::Quillet: configure the environment, create a Starter, present its screen.
#include "Quillet/Platform/URLSessionConfiguration.hpp"
#include "Quillet/QuilletNavigationDelegate.hpp"
#include "Quillet/Starter.hpp"
#include "Quillet/Version.hpp"
