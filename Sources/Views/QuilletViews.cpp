#include "Views/QuilletViews.hpp"

#include "KelDS/KelDS.hpp"

#include <QtCore/qglobal.h>

extern void qml_register_types_Quillet_Views();
static void initViewResources() {
    Q_INIT_RESOURCE(qmake_Quillet_Views);
}

namespace quillet {

void useQuilletViews(QQmlEngine& engine) {
    static const bool once = [] {
        initViewResources();
        qml_register_types_Quillet_Views();
        return true;
    }();
    static_cast<void>(once);
    kel::useDesignSystem(engine);
}

} // namespace quillet
