#include "Tables.hpp"

#include "KelCommon/KelCommon.hpp"
#include "Resources/ModuleBundle.hpp"

#include <QFile>

#include <ostream>
#include <stdexcept>

namespace quillet::docs {

namespace {

QByteArray contents(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QFile::ReadOnly)) {
        throw std::runtime_error("cannot read " + path);
    }
    return file.readAll();
}

QString textIn(const char* language, const char* key) {
    kel::setLanguage(language);
    return kel::localized(key, moduleBundle());
}

QString countsIn(const char* language, const char* key) {
    kel::setLanguage(language);
    const auto count = kel::localizedCount(key, moduleBundle());
    return count(0) + QLatin1String(", ") + count(1) + QLatin1String(", ") + count(2);
}

void printText(std::ostream& out, const char* key, QString (*in)(const char* language, const char* key)) {
    std::vector<std::string> cells{'`' + std::string(key) + '`'};
    for (const char* language : {"es", "pt", "en"}) {
        cells.push_back(in(language, key).toStdString());
    }
    printRow(out, cells);
}

} // namespace

void printTexts(std::ostream& out) {
    printHead(out, {"Key", "Spanish", "Portuguese", "English"});
#define QUILLET_TEXT(name, key) printText(out, key, textIn);
#define QUILLET_NUMBERED_TEXT(name, key) QUILLET_TEXT(name, key)
#define QUILLET_COUNTED_TEXT(name, key) printText(out, key, countsIn);
#include "Resources/LocalizationKeys.def"
}

void printHostTable(std::ostream& out, const std::string& root) {
    out << "```xml\n" << contents(root + "/Tests/Views/host_fr.ts").toStdString() << "```\n";
}

void printHostCode(std::ostream& out, const std::string& root) {
    out << "```cpp\n";
    bool isShown = false;
    for (const QByteArray& line : contents(root + "/Tests/Views/LocalizationTest.cpp").split('\n')) {
        const QByteArray code = line.trimmed();
        if (code == "// end: host-code") {
            isShown = false;
        }
        if (isShown) {
            out << code.toStdString() << '\n';
        }
        if (code == "// begin: host-code") {
            isShown = true;
        }
    }
    out << "```\n";
}

} // namespace quillet::docs
