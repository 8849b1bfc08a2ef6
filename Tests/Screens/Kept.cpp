#include "Kept.hpp"

#include "Support/Reading.hpp"

#include <QFile>

namespace demo::testing {

void expectKept(const QString& name, const QStringList& lines) {
    QFile file(QStringLiteral(QUILLET_KEPT_DESCRIPTIONS "/%1.txt").arg(name));
    const QByteArray told = lines.join(u'\n').toUtf8() + '\n';
    if (qEnvironmentVariableIsSet("QUILLET_RENEW_DESCRIPTIONS")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(told) == told.size());
        GTEST_SKIP() << "renewed";
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    EXPECT_EQ(told.toStdString(), file.readAll().toStdString()) << file.fileName().toStdString();
}

std::string testName(const ::testing::TestParamInfo<const char*>& instance) {
    return QString(instance.param).replace(u'-', u'_').replace(u'.', u'_').toStdString();
}

QStringList heardOf(QWindow& window) {
    return quillet::testing::readingOrder(*QAccessible::queryAccessibleInterface(&window));
}

} // namespace demo::testing
