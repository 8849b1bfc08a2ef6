#include "Tables.hpp"

#include "KelCommon/KelCommon.hpp"
#include "Resources/ModuleBundle.hpp"

#include <QFile>
#include <QXmlStreamReader>

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

// The keys in the order of the table of texts; the library keeps no list of them.
QStringList keysOf(const std::string& root) {
    QXmlStreamReader xml(contents(root + "/Sources/Resources/Texts/quillet_en.ts"));
    QStringList keys;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("source")) {
            keys << xml.readElementText();
        }
    }
    return keys;
}

} // namespace

void printTexts(std::ostream& out, const std::string& root) {
    printHead(out, {"Key", "Spanish", "Portuguese", "English"});
    for (const QString& key : keysOf(root)) {
        std::vector<std::string> cells{'`' + key.toStdString() + '`'};
        for (const char* language : {"es", "pt", "en"}) {
            kel::setLanguage(language);
            const QByteArray name = key.toUtf8();
            const QString text = kel::localized(name, moduleBundle());
            const auto count = kel::localizedCount(name, moduleBundle());
            cells.push_back((key == "points count" ? count(1) + ", " + count(2) : text).toStdString());
        }
        printRow(out, cells);
    }
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
