#include "Language.hpp"
#include "KelCommon/KelLocalized.hpp"
#include "Play/LanguagePlay.hpp"
#include "Resources/ModuleBundle.hpp"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QJsonArray>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace demo::testing {

namespace {

void write(const QString& path, const QByteArray& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
}

} // namespace

TEST(Language, BringsItsTextsAndItsDirection) {
    const std::tuple<const char*, const char*, Qt::LayoutDirection> cases[] = {
        {"xb", "גכמעה", Qt::RightToLeft},
        {"es", "Cerrar", Qt::LeftToRight},
        {"xa", "⟦Çĺóšé óñé⟧", Qt::LeftToRight},
    };
    for (const auto& [code, text, direction] : cases) {
        useLanguage(code);
        EXPECT_EQ(kel::localized("Close", quillet::moduleBundle()), text);
        EXPECT_EQ(QGuiApplication::layoutDirection(), direction) << code;
    }
    kel::setHostTexts({});
    useLanguage("es");
}

TEST(LanguagePlay, HasAProcessOfItsOwnWhoseReportAndPicturesAreTheTours) {
    const QTemporaryDir folder;
    write(folder.filePath("p.play"), "language pt\nhandmade ERROR_CART_ALREADY_SUBMITTED\n"
                                     "expect \"Você já registrou este pedido!\"\nshot asked\n");

    // A host whose play was met, but that warned.
    write(folder.filePath("warning-host"), "#!/bin/sh\nmkdir -p \"$4\"\n"
                                           "echo '{\"plays\": [{\"ok\": true, \"steps\": [{}]}]}' > "
                                           "\"$4/tour.json\"\nexit 1\n");
    const std::tuple<QString, bool, int> cases[] = {
        {QUILLET_HOST_PROGRAM, true, 4}, {folder.filePath("warning-host"), false, 1}, {"/nowhere", false, 0}};
    for (const auto& [program, ok, told] : cases) {
        SCOPED_TRACE(program.toStdString());
        PlayScript play;
        play.name = "p";
        play.source = folder.filePath("p.play");
        Options tour;
        tour.outFolder = folder.path();
        tour.size = {320, 568};
        const QJsonObject report = runLanguagePlay(program, play, tour);
        EXPECT_EQ(report["name"], "p");
        EXPECT_EQ(report["ok"], ok);
        EXPECT_EQ(report["steps"].toArray().size(), told);
        EXPECT_FALSE(QFile::exists(folder.filePath("p/tour.json")));
        if (ok) {
            EXPECT_EQ(report["steps"][3]["shot"], "p/asked.png");
            EXPECT_EQ(QImage(folder.filePath("p/asked.png")).size(), QSize(640, 1136));
        }
    }
}

} // namespace demo::testing
