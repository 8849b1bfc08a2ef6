#pragma once

/// Everything that a host needs: configure the environment, build a Starter, present its root screen.
#include "Entry/QuilletConfiguration.hpp"
#include "Entry/Starter.hpp"
#include "Platform/Http/URLSessionConfiguration.hpp"
