#include "Language.hpp"
#include "HostProgram.hpp"
#include "KelCommon/KelLocalized.hpp"
#include "Play/LanguagePlay.hpp"
#include "Resources/ModuleBundle.hpp"

#include <QGuiApplication>
#include <QImage>
#include <QJsonArray>

namespace demo::testing {

namespace {

using LanguagePlay = HostProgram;

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

TEST_F(LanguagePlay, HasAProcessOfItsOwnWhoseReportAndPicturesAreTheTours) {
    PlayScript play;
    play.name = "p";
    play.source = write("language pt\nhandmade ERROR_CART_ALREADY_SUBMITTED\n"
                        "expect \"Você já registrou este pedido!\"\nshot asked\n");
    Options tour;
    tour.outFolder = folder.path();
    tour.size = {320, 568};
    // A play that was met fails where Qt warned.
    for (const bool warns : {true, false}) {
        qputenv("QT_QUICK_CONTROLS_CONF", warns ? "/nowhere" : "");
        const QJsonObject report = runLanguagePlay(QUILLET_HOST_PROGRAM, play, tour);
        EXPECT_EQ(report["ok"], !warns);
        EXPECT_EQ(report["name"], "p");
        EXPECT_EQ(report["steps"][3]["shot"], "p/asked.png");
        EXPECT_EQ(QImage(folder.filePath("p/asked.png")).size(), QSize(640, 1136));
        EXPECT_FALSE(QFile::exists(folder.filePath("p/tour.json")));
    }
}

} // namespace demo::testing
