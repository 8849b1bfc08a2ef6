#pragma once

/// The front door of Quillet::Testing: what a host needs to test that it embeds the module well, without
/// network.
#include "Quillet/Testing/ManualClock.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "Quillet/Testing/ScriptedBackend.hpp"
