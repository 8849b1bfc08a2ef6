#pragma once

#include "StringTable.hpp"

namespace demo {

/// English that reads as a foreign language: every letter with an accent, longer by two fifths and more, and
/// between brackets, so that a text that is cut off, or is in no table, shows at once.
[[nodiscard]] QString accented(const QString& text);

/// English in Hebrew letters, one for each of its own: no words of any language, but a text that is written
/// and laid out from right to left.
[[nodiscard]] QString rightToLeft(const QString& text);

/// The table with each form of each text changed; placeholders stay.
[[nodiscard]] StringTable pseudoLocale(StringTable table, QString (*change)(const QString& text));

} // namespace demo
