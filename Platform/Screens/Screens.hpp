#pragma once

class QQmlEngine;

namespace quillet::platform {

/// Makes `import Quillet.Screens` work in the given engine. Cheap, and may be called again for the same
/// engine.
void useScreens(QQmlEngine& engine);

} // namespace quillet::platform
