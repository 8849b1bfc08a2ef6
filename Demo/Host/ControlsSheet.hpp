#pragma once

#include <QString>

#include <expected>

namespace demo {

/// Draws the design system's tokens and controls, in the theme in force, on one sheet and writes it as a
/// picture, whose format follows the file's extension. The error is one line for a person. Main thread only.
[[nodiscard]] std::expected<void, QString> drawControls(const QString& file);

} // namespace demo
