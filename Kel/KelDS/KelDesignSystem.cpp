#include "KelDS/KelDesignSystem.hpp"

#include <QQmlEngine>
#include <QQmlExtensionPlugin>

extern void qml_register_types_KelDS();
static void initControlResources() {
    Q_INIT_RESOURCE(qmake_KelDS);
}

namespace kel {

void useDesignSystem(QQmlEngine& engine) {
    // Naming the function keeps the linker from dropping the registration out of the static library; running
    // it twice does no harm, as the engine keeps one registration a module.
    static const bool once = [] {
        initControlResources();
        qml_register_types_KelDS();
        return true;
    }();
    static_cast<void>(once);
    if (!engine.importPathList().contains(QStringLiteral(":/qt/qml"))) {
        engine.addImportPath(QStringLiteral(":/qt/qml"));
    }
}

} // namespace kel
