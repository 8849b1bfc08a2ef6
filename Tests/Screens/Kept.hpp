#pragma once

#include <QStringList>

namespace demo::testing {

/// Compares lines with those kept in Expected under this name, and fails where they differ. With
/// QUILLET_RENEW_DESCRIPTIONS set it keeps them instead, and the test counts as skipped.
void expectKept(const QString& name, const QStringList& lines);

[[nodiscard]] QStringList toLines(const std::vector<std::string>& lines);

} // namespace demo::testing
