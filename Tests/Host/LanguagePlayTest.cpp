#include "Play/LanguagePlay.hpp"

#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace demo::testing {

TEST(LanguagePlay, HasAProcessOfItsOwnWhoseReportAndPicturesAreTheTours) {
    const QTemporaryDir folder;
    // A host whose play was met, but that warned.
    QFile warning(folder.filePath("warning-host"));
    ASSERT_TRUE(warning.open(QIODevice::WriteOnly));
    warning.write("#!/bin/sh\nmkdir -p \"$4\"\necho '{\"plays\": [{\"ok\": true, \"steps\": [{}]}]}' > "
                  "\"$4/tour.json\"\nexit 1\n");
    warning.close();
    ASSERT_TRUE(warning.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    const struct {
        QString program;
        QByteArray steps;
        bool ok;
        int told;
    } cases[] = {
        {QUILLET_HOST_PROGRAM,
         "language pt\nhandmade ERROR_CART_ALREADY_SUBMITTED\nexpect \"Você já registrou este "
         "pedido!\"\nshot asked\n",
         true, 4},
        {QUILLET_HOST_PROGRAM, "language pt\nshot asked\nexpect \"Pedidos recibidos\" within=0\nclose\n",
         false, 3},
        {QUILLET_HOST_PROGRAM, "language pt\ndance\n", false, 0},
        {warning.fileName(), "language pt\n", false, 1},
        {"/nowhere", "language pt\n", false, 0},
    };
    for (const auto& [program, steps, ok, told] : cases) {
        SCOPED_TRACE(steps.toStdString());
        QFile file(folder.filePath("p.play"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(steps);
        file.close();
        PlayScript play;
        play.name = "p";
        play.source = file.fileName();
        Options tour;
        tour.outFolder = folder.path();
        tour.size = {320, 568};
        const QJsonObject report = runLanguagePlay(program, play, tour);
        EXPECT_EQ(report["name"], "p");
        EXPECT_EQ(report["ok"], ok);
        EXPECT_EQ(report["steps"].toArray().size(), told);
        EXPECT_FALSE(QFile::exists(folder.filePath("p/tour.json")));
        for (const QJsonValue step : report["steps"].toArray()) {
            if (const QString shot = step["shot"].toString(); !shot.isEmpty()) {
                EXPECT_EQ(shot, "p/asked.png");
                EXPECT_EQ(QImage(folder.filePath(shot)).size(), QSize(640, 1136));
            }
        }
    }
}

} // namespace demo::testing
