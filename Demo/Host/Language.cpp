#include "Language.hpp"

#include "KelCommon/KelLocalized.hpp"
#include "PseudoTexts.hpp"

#include <QGuiApplication>

namespace demo {

bool isLanguage(const QString& code) {
    static const QStringList codes{QStringLiteral("es"), QStringLiteral("pt"), QStringLiteral("en"),
                                   QStringLiteral("xa"), QStringLiteral("xb")};
    return codes.contains(code);
}

QString languageRule() {
    return QStringLiteral("es, pt, en, xa or xb");
}

bool runsFromRightToLeft(const QString& code) {
    return code == QLatin1String("xb");
}

void useLanguage(const QString& code) {
    // It has no table for a real language, which so stays what it is.
    usePseudoTexts();
    kel::setLanguage(code);
    QGuiApplication::setLayoutDirection(runsFromRightToLeft(code) ? Qt::RightToLeft : Qt::LeftToRight);
}

} // namespace demo
