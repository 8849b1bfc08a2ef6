#pragma once

class QQmlEngine;

namespace kel {

/// Makes `import KelDS` work in the given engine. Cheap, and may be called again for the same engine.
void useDesignSystem(QQmlEngine& engine);

} // namespace kel
