#include "PseudoTexts.hpp"

#include "KelCommon/KelLocalized.hpp"

// The macro has to stand outside any namespace.
static void initPseudoResources() {
    Q_INIT_RESOURCE(pseudo_texts);
}

namespace demo {

void usePseudoTexts() {
    initPseudoResources();
    kel::setHostTexts({QStringLiteral(":/pseudo"), QStringLiteral("pseudo")});
}

} // namespace demo
