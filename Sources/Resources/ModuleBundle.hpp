#pragma once

#include "KelCommon/KelCommon.hpp"

#include <QUrl>

namespace quillet {

/// Where the module's own string tables lie.
[[nodiscard]] const kel::KelBundle& moduleBundle();

/// The address of one of the module's images, given by its name without an ending.
[[nodiscard]] QUrl moduleImage(const QString& name);

} // namespace quillet
