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

QString currentLanguage() {
    if (!chosenLanguage().isEmpty()) {
        return chosenLanguage();
    }
    const QLocale system = QLocale::system();
    return system.language() == QLocale::C ? QString::fromLatin1(fallbackLanguage) : system.name().left(2);
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

// Empty without an entry. The host's texts come before a library's own, in either language.
QString entry(const char* key, const KelBundle& bundle, const QString& language, int count = -1) {
    for (const QString& candidate : {language, QString::fromLatin1(fallbackLanguage)}) {
        for (const KelBundle& texts : {hostTexts(), bundle}) {
            const QString text = table(texts, candidate).translate("", key, nullptr, count);
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
    const QString text = entry(key, bundle, currentLanguage());
    return text.isEmpty() ? QString::fromUtf8(key) : text;
}

std::function<QString(quint64)> localizedCount(const char* key, const KelBundle& bundle) {
    return [key, bundle, language = currentLanguage()](quint64 count) {
        const int form = static_cast<int>(std::min<quint64>(count, std::numeric_limits<int>::max()));
        QString text = entry(key, bundle, language, form);
        const QString digits = QString::number(count);
        // The number matters more than the word for it.
        return text.contains(QLatin1String("%n")) ? text.replace(QLatin1String("%n"), digits) : digits;
    };
}

} // namespace kel
