#include "KelDSIcons/KelDSIcons.hpp"

#include <QFontDatabase>
#include <QStringList>

// Resources of a static library are dropped by the linker unless somebody asks for them by name, and the
// macro that asks has to stand outside any namespace.
static void initIconResources() {
    Q_INIT_RESOURCE(kel_icons);
}

namespace kel {

QString getIcon(int number) {
    switch (static_cast<KelIconNumber>(number)) {
    case KelIconNumber::checkCircle:
        return QChar(0xe86c);
    case KelIconNumber::error:
        return QChar(0xe000);
    case KelIconNumber::inventory:
        return QChar(0xe1a1);
    case KelIconNumber::localMall:
        return QChar(0xe54c);
    case KelIconNumber::warning:
        return QChar(0xe8b2);
    case KelIconNumber::calendar:
        return QChar(0xe935);
    case KelIconNumber::schedule:
        return QChar(0xe8b5);
    case KelIconNumber::close:
        return QChar(0xe5cd);
    case KelIconNumber::expandMore:
        return QChar(0xe5cf);
    case KelIconNumber::arrowBack:
        return QChar(0xe5c4);
    case KelIconNumber::share:
        return QChar(0xe80d);
    case KelIconNumber::home:
        return QChar(0xe88a);
    case KelIconNumber::screen:
        return QChar(0xe324);
    case KelIconNumber::touch:
        return QChar(0xe913);
    case KelIconNumber::cart:
        return QChar(0xe8cc);
    case KelIconNumber::message:
        return QChar(0xe0b7);
    }
    return {};
}

const QString& iconFontFamily() {
    static const QString family = [] {
        initIconResources();
        const int font = QFontDatabase::addApplicationFont(QStringLiteral(":/kel/icons.ttf"));
        return QFontDatabase::applicationFontFamilies(font).value(0);
    }();
    return family;
}

} // namespace kel
