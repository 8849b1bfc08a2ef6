#include "Views/QuilletViews.hpp"

#include "KelDS/KelDS.hpp"
#include "Platform/Screens/Screens.hpp"

#include <QtCore/qglobal.h>

extern void qml_register_types_Quillet();
// The macro has to stand outside any namespace.
static void initViewResources() {
    Q_INIT_RESOURCE(qmake_Quillet);
}

namespace quillet {

void useQuilletViews(QQmlEngine& engine) {
    // Naming the function keeps the linker from dropping the registration out of the static library.
    static const bool once = [] {
        initViewResources();
        qml_register_types_Quillet();
        return true;
    }();
    static_cast<void>(once);
    platform::useScreens(engine);
    kel::useDesignSystem(engine);
}

} // namespace quillet
