#include "Tables.hpp"

#include "KelCommon/KelCommon.hpp"
#include "Resources/ModuleBundle.hpp"

#include <QFile>
#include <QXmlStreamReader>

#include <ostream>
#include <stdexcept>

namespace quillet::docs {

namespace {

// The keys in the order of the table of texts; the library keeps no list of them.
QStringList keysOf(const std::string& root) {
    QFile file(QString::fromStdString(root) + "/Sources/Resources/Texts/quillet_en.ts");
    if (!file.open(QFile::ReadOnly)) {
        throw std::runtime_error("cannot read " + file.fileName().toStdString());
    }
    QXmlStreamReader xml(&file);
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

} // namespace quillet::docs
