#include "SaleSummary/SaleSummaryQml.hpp"

#include <QtCore/qglobal.h>

extern void qml_register_types_Quillet_SaleSummary();
static void initSaleSummaryResources() {
    Q_INIT_RESOURCE(qmake_Quillet_SaleSummary);
}

namespace quillet {

void useSaleSummaryQml() {
    initSaleSummaryResources();
    qml_register_types_Quillet_SaleSummary();
}

} // namespace quillet
