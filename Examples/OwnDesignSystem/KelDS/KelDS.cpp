#include "KelDS/KelDS.hpp"

extern void qml_register_types_KelDS();
static void initResources() {
    Q_INIT_RESOURCE(qmake_KelDS);
}

kel::KelAppearance& kel::KelAppearance::current() {
    static KelAppearance appearance;
    return appearance;
}

void kel::useDesignSystem(QQmlEngine&) {
    qml_register_types_KelDS();
    initResources();
}
