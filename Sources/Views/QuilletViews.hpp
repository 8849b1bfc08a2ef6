#pragma once

class QQmlEngine;

namespace quillet {

/// Makes the module's QML types, and the design system's below them, known to an engine. Cheap; may be called
/// again.
void useQuilletViews(QQmlEngine& engine);

} // namespace quillet
