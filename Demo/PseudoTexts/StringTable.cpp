#include "StringTable.hpp"

#include <QFile>
#include <QXmlStreamReader>

namespace demo {

namespace {

void readTranslation(QXmlStreamReader& xml, StringTableEntry& entry) {
    entry.isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
    if (!entry.isCounted) {
        entry.forms << xml.readElementText();
        return;
    }
    while (xml.readNextStartElement()) {
        entry.forms << xml.readElementText();
    }
}

StringTableEntry readMessage(QXmlStreamReader& xml) {
    StringTableEntry entry;
    entry.isCounted = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            entry.key = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            readTranslation(xml, entry);
        } else {
            xml.skipCurrentElement();
        }
    }
    return entry;
}

void writeMessage(QXmlStreamWriter& xml, const StringTableEntry& entry) {
    xml.writeStartElement(QStringLiteral("message"));
    if (entry.isCounted) {
        xml.writeAttribute(QStringLiteral("numerus"), QStringLiteral("yes"));
    }
    xml.writeTextElement(QStringLiteral("source"), entry.key);
    xml.writeStartElement(QStringLiteral("translation"));
    for (const QString& form : entry.forms) {
        if (entry.isCounted) {
            xml.writeTextElement(QStringLiteral("numerusform"), form);
        } else {
            xml.writeCharacters(form);
        }
    }
    xml.writeEndElement();
    xml.writeEndElement();
}

} // namespace

std::expected<StringTable, QString> readStringTable(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) {
        return std::unexpected(QStringLiteral("cannot read the string table ") + path);
    }
    StringTable table;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("TS")) {
            table.language = xml.attributes().value(QLatin1String("language")).toString();
        } else if (xml.name() == QLatin1String("message")) {
            table.entries.push_back(readMessage(xml));
        }
    }
    if (xml.hasError()) {
        return std::unexpected(path + QStringLiteral(": ") + xml.errorString());
    }
    return table;
}

QByteArray writeStringTable(const StringTable& table) {
    QByteArray written;
    QXmlStreamWriter xml(&written);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeDTD(QStringLiteral("<!DOCTYPE TS>"));
    xml.writeStartElement(QStringLiteral("TS"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
    xml.writeAttribute(QStringLiteral("language"), table.language);
    xml.writeStartElement(QStringLiteral("context"));
    xml.writeTextElement(QStringLiteral("name"), QString());
    for (const StringTableEntry& entry : table.entries) {
        writeMessage(xml, entry);
    }
    xml.writeEndDocument();
    return written;
}

} // namespace demo
