#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <expected>
#include <vector>

namespace demo {

/// One text of a string table.
struct StringTableEntry {
    QString key;
    /// One for each plural form of the language, or just one.
    QStringList forms;
    bool isCounted = false;
    /// Whether Qt Linguist would call the translation ready for use.
    bool isFinished = true;
};

/// A Qt Linguist table, as far as the module uses them: without contexts, comments and places in the code.
struct StringTable {
    QString language;
    std::vector<StringTableEntry> entries;
};

/// The error is one line for a person.
[[nodiscard]] std::expected<StringTable, QString> readStringTable(const QString& path);
[[nodiscard]] QByteArray writeStringTable(const StringTable& table);

} // namespace demo
