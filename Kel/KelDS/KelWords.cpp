#include "KelDS/KelWords.hpp"

#include "KelCommon/KelLocalized.hpp"

// The macro has to stand outside any namespace; see KelDSIcons.
static void initWordResources() {
    Q_INIT_RESOURCE(kel_words);
}

namespace kel {

namespace {

QString word(const char* key) {
    initWordResources();
    return localized(key, {QStringLiteral(":/kel/texts"), QStringLiteral("kelds")});
}

} // namespace

QString KelWords::close() {
    static const QString text = word("Close");
    return text;
}

QString KelWords::loading() {
    static const QString text = word("Loading");
    return text;
}

} // namespace kel
