#pragma once

#include <QStringList>
#include <QWindow>

#include <gtest/gtest.h>

namespace demo::testing {

/// Compares lines with those kept in Expected under this name, and fails where they differ. With
/// QUILLET_RENEW_DESCRIPTIONS set it keeps them instead, and the test counts as skipped.
void expectKept(const QString& name, const QStringList& lines);

/// The name of a test that is for what has this name.
[[nodiscard]] std::string testName(const ::testing::TestParamInfo<const char*>& instance);

/// What a screen reader reads of a window, in its order.
[[nodiscard]] QStringList heardOf(QWindow& window);

} // namespace demo::testing
