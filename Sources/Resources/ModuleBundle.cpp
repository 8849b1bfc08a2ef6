#include "Resources/ModuleBundle.hpp"

#include "KelDS/KelDS.hpp"

// The resources of a static library stay with the program only if they are asked for by name, outside any
// namespace.
static void initModuleResources() {
    Q_INIT_RESOURCE(quillet_texts);
    Q_INIT_RESOURCE(quillet_images);
}

namespace quillet {

const kel::KelBundle& moduleBundle() {
    static const kel::KelBundle bundle = [] {
        initModuleResources();
        return kel::KelBundle{QStringLiteral(":/quillet/texts"), QStringLiteral("quillet")};
    }();
    return bundle;
}

QUrl moduleImage(const QString& name) {
    static_cast<void>(moduleBundle());
    // The greys of a drawing have to stand out from the ground.
    const bool isDark = kel::KelColors::surface().lightnessF() < 0.5F;
    return QUrl(QStringLiteral("qrc:/quillet/images/%1%2.svg")
                    .arg(name, isDark ? QStringLiteral("-dark") : QString()));
}

} // namespace quillet
