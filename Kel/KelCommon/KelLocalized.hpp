#pragma once

#include <QString>

#include <functional>

namespace kel {

/// Where a library keeps its string tables: Qt Linguist tables called "<table>_<language>.qm" in a resource
/// folder.
struct KelBundle {
    QString folder;
    QString table;
};

/// The language that texts are looked up in from now on, as an ISO 639 code ("es"); empty means the languages
/// of the system's user interface, in the user's order. A host calls it before it shows anything: texts that
/// were looked up before keep their language.
void setLanguage(const QString& language);

/// Names a host's own string tables, which come before those of all libraries: a text of the same key
/// overrides theirs, and a table in another language adds it. A host calls it before it shows anything. Main
/// thread only.
void setHostTexts(const KelBundle& bundle);

/// The text of `key` in the bundle's table for the current language; without an entry there, in the Spanish
/// one; without that, the key itself. Main thread only.
[[nodiscard]] QString localized(const char* key, const KelBundle& bundle);

/// The same for a text whose form depends on a count: the words in the language of this moment, to be kept
/// and called with counts. The plural form is chosen by the count clamped to `int`, the digits put in place
/// of "%n" come from all 64 bits. Without an entry the text is the digits alone.
[[nodiscard]] std::function<QString(quint64 count)> localizedCount(const char* key, const KelBundle& bundle);

} // namespace kel
