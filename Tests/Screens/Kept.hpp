#pragma once

#include "Support/Reading.hpp"

#include <QFile>
#include <QWindow>

#include <gtest/gtest.h>

namespace demo::testing {

/// Compares lines with those kept in Expected under this name, and fails where they differ. With
/// QUILLET_RENEW_DESCRIPTIONS set it keeps them instead, and the test counts as skipped.
inline void expectKept(const QString& name, const QStringList& lines) {
    QFile file(QStringLiteral(QUILLET_KEPT_DESCRIPTIONS "/%1.txt").arg(name));
    const QByteArray told = lines.join(u'\n').toUtf8() + '\n';
    if (qEnvironmentVariableIsSet("QUILLET_RENEW_DESCRIPTIONS")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(told) == told.size());
        GTEST_SKIP() << "renewed";
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    EXPECT_EQ(told.toStdString(), file.readAll().toStdString()) << file.fileName().toStdString();
}

/// What a screen reader reads of a window, in its order.
[[nodiscard]] inline QStringList heardOf(QWindow& window) {
    return quillet::testing::readingOrder(*QAccessible::queryAccessibleInterface(&window));
}

} // namespace demo::testing
