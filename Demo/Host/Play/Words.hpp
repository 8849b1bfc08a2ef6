#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace demo {

/// The words of a step's line.
using Words = QStringList;

/// Splits at blanks outside double quotes; nothing if a quote is not closed.
[[nodiscard]] std::optional<Words> split(const QString& line);

/// The words "key=value" of a step; nothing if one is malformed, unknown or repeated.
[[nodiscard]] std::optional<QHash<QString, QString>> settings(const Words& words, const QStringList& known);

/// One word of a fixed set.
[[nodiscard]] std::optional<QString> choice(const Words& words, const QStringList& known);

/// The one word that there is; nothing if there are none or more.
[[nodiscard]] std::optional<QString> onlyWord(const Words& words);

} // namespace demo
