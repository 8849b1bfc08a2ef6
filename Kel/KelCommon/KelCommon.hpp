#pragma once

/// What a host's libraries share: analytics and texts.
#include "KelCommon/KelAnalytics.hpp"
#include "KelCommon/KelAnalyticsManager.hpp"
#include "KelCommon/KelLocalized.hpp"
