// quillet-pseudo-texts xa|xb OUT IN ...: writes the English tables IN as one table of a language that nobody
// speaks, accented (xa) or from right to left (xb).
#include "PseudoLocale.hpp"

#include <QFile>

#include <algorithm>
#include <cstdio>

namespace {

int complain(const QString& line) {
    std::fprintf(stderr, "quillet-pseudo-texts: %s\n", qUtf8Printable(line));
    return 1;
}

/// Adds what the table does not have yet: two libraries may use the same key.
void add(demo::StringTable& table, const demo::StringTable& other) {
    for (const auto& entry : other.entries) {
        if (std::ranges::find(table.entries, entry.key, &demo::StringTableEntry::key) ==
            table.entries.end()) {
            table.entries.push_back(entry);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    const QString code = QString::fromLocal8Bit(argc > 3 ? argv[1] : "");
    if (code != QLatin1String("xa") && code != QLatin1String("xb")) {
        return complain(QStringLiteral("takes xa or xb, a file to write and the files to read"));
    }
    // The plural forms are those of English, and a table tells by its language which forms it has.
    demo::StringTable table{QStringLiteral("en"), {}};
    for (int i = 3; i < argc; ++i) {
        const auto read = demo::readStringTable(QString::fromLocal8Bit(argv[i]));
        if (!read) {
            return complain(read.error());
        }
        add(table, *read);
    }
    const auto change = code == QLatin1String("xa") ? demo::accented : demo::rightToLeft;
    const QByteArray written = writeStringTable(pseudoLocale(table, change));
    QFile file(QString::fromLocal8Bit(argv[2]));
    if (!file.open(QFile::WriteOnly) || file.write(written) != written.size()) {
        return complain(QStringLiteral("cannot write ") + file.fileName());
    }
}
