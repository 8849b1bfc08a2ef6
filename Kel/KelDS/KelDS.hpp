#pragma once

/// The design system for C++.
#include "KelDS/KelAppearance.hpp"
#include "KelDS/KelColors.hpp"
#include "KelDS/KelDesignSystem.hpp"
#include "KelDS/KelDialogController.hpp"
#include "KelDS/KelFonts.hpp"
#include "KelDS/KelMeasures.hpp"
#include "KelDS/KelTagColor.hpp"
