#include "Platform/Screens/Screens.hpp"

#include "Platform/Screens/Accessible/AccessibleItem.hpp"

#include <QQmlEngine>

extern void qml_register_types_Quillet_Screens();
// The macro has to stand outside any namespace.
static void initScreenResources() {
    Q_INIT_RESOURCE(qmake_Quillet_Screens);
}

namespace quillet::platform {

void useScreens(QQmlEngine& engine) {
    // Naming the function keeps the linker from dropping the registration out of the static library.
    static const bool once = [] {
        initScreenResources();
        qml_register_types_Quillet_Screens();
        useAccessibleItems();
        return true;
    }();
    static_cast<void>(once);
    if (!engine.importPathList().contains(QStringLiteral(":/qt/qml"))) {
        engine.addImportPath(QStringLiteral(":/qt/qml"));
    }
}

} // namespace quillet::platform
