#pragma once

#include <QStringList>
#include <QWindow>

namespace demo::testing {

/// Compares lines with those kept in Expected under this name, and fails where they differ. With
/// QUILLET_RENEW_DESCRIPTIONS set it keeps them instead, and the test counts as skipped.
void expectKept(const QString& name, const QStringList& lines);

/// What a screen reader reads of a window, in its order.
[[nodiscard]] QStringList heardOf(QWindow& window);

} // namespace demo::testing
