#pragma once

/// All that a host needs: configure the environment, create a Starter, present its root screen.
#include "Entry/QuilletConfiguration.hpp"
#include "Entry/Starter.hpp"
#include "Platform/Http/URLSessionConfiguration.hpp"
