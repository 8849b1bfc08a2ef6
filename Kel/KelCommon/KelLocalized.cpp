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

QString currentLanguage() {
    if (!chosenLanguage().isEmpty()) {
        return chosenLanguage();
    }
    const QLocale system = QLocale::system();
    return system.language() == QLocale::C ? QString::fromLatin1(fallbackLanguage) : system.name().left(2);
}

std::shared_ptr<const QTranslator> table(const KelBundle& bundle) {
    static QHash<QString, std::shared_ptr<QTranslator>> tables;
    const QString language = currentLanguage();
    auto& translator = tables[bundle.folder + u'/' + bundle.table + u'/' + language];
    if (!translator) {
        translator = std::make_shared<QTranslator>();
        for (const QString& candidate : {language, QString::fromLatin1(fallbackLanguage)}) {
            if (translator->load(bundle.folder + u'/' + bundle.table + u'_' + candidate)) {
                break;
            }
        }
    }
    return translator;
}

} // namespace

void setLanguage(const QString& language) {
    chosenLanguage() = language;
}

QString localized(const char* key, const KelBundle& bundle) {
    const QString text = table(bundle)->translate("", key);
    return text.isEmpty() ? QString::fromUtf8(key) : text;
}

std::function<QString(quint64)> localizedCount(const char* key, const KelBundle& bundle) {
    return [key, words = table(bundle)](quint64 count) {
        const int form = static_cast<int>(std::min<quint64>(count, std::numeric_limits<int>::max()));
        QString text = words->translate("", key, nullptr, form);
        if (text.isEmpty()) {
            text = QString::fromUtf8(key);
        }
        return text.replace(QLatin1String("%n"), QString::number(count));
    };
}

} // namespace kel
