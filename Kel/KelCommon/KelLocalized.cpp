#include "KelCommon/KelLocalized.hpp"

#include <QHash>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <limits>
#include <memory>

namespace kel {

namespace {

constexpr auto fallbackLanguage = "es";

QString& chosenLanguage() {
    static QString language;
    return language;
}

KelBundle& hostTexts() {
    static KelBundle bundle;
    return bundle;
}

// The languages in which a text is looked up, in their order.
QStringList currentLanguages() {
    QStringList languages{chosenLanguage()};
    if (chosenLanguage().isEmpty()) {
        languages = QLocale::system().uiLanguages();
    }
    languages << QString::fromLatin1(fallbackLanguage);
    for (QString& language : languages) {
        // "pt-BR" is Portuguese; "C" and codes of three letters have no table.
        language = language.section(u'-', 0, 0);
    }
    languages.removeDuplicates();
    return languages;
}

const QTranslator& table(const KelBundle& bundle, const QString& language) {
    static QHash<QString, std::shared_ptr<QTranslator>> tables;
    const QString file = bundle.folder + u'/' + bundle.table + u'_' + language;
    auto& translator = tables[file];
    if (!translator) {
        translator = std::make_shared<QTranslator>();
        static_cast<void>(translator->load(file));
    }
    return *translator;
}

// Empty without an entry. The host's texts come before a library's own, in each language.
QString entry(const char* key, const KelBundle& bundle, const QStringList& languages, int count = -1) {
    for (const QString& language : languages) {
        for (const KelBundle& texts : {hostTexts(), bundle}) {
            const QString text = table(texts, language).translate("", key, nullptr, count);
            if (!text.isEmpty()) {
                return text;
            }
        }
    }
    return {};
}

} // namespace

void setLanguage(const QString& language) {
    chosenLanguage() = language;
}

void setHostTexts(const KelBundle& bundle) {
    hostTexts() = bundle;
}

QString localized(const char* key, const KelBundle& bundle) {
    const QString text = entry(key, bundle, currentLanguages());
    return text.isEmpty() ? QString::fromUtf8(key) : text;
}

std::function<QString(quint64)> localizedCount(const char* key, const KelBundle& bundle) {
    return [key, bundle, languages = currentLanguages()](quint64 count) {
        const int form = static_cast<int>(std::min<quint64>(count, std::numeric_limits<int>::max()));
        QString text = entry(key, bundle, languages, form);
        const QString digits = QString::number(count);
        // The number matters more than the word for it.
        return text.contains(QLatin1String("%n")) ? text.replace(QLatin1String("%n"), digits) : digits;
    };
}

} // namespace kel
