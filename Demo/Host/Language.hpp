#pragma once

#include <QString>

namespace demo {

/// Whether the sample host can be asked to speak a language of this code.
[[nodiscard]] bool isLanguage(const QString& code);
/// What it can be asked for, for a person.
[[nodiscard]] QString languageRule();
/// Whether its texts run from right to left.
[[nodiscard]] bool runsFromRightToLeft(const QString& code);
/// Lets the module speak it, and the layout follow its direction. Before the first screen only.
void useLanguage(const QString& code);

} // namespace demo
