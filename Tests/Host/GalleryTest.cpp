#include "HostProgram.hpp"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <map>

namespace demo::testing {

namespace {

struct GalleryProgram : ::testing::Test, HostProgram {};

} // namespace

TEST_F(GalleryProgram, ShowsADifferenceAlongEachAxis) {
    ASSERT_EQ(run({"--gallery", folder.path(), "--quick"}), 0) << complaint.toStdString();
    EXPECT_EQ(complaint.toStdString(), "");
    QFile index(folder.filePath("index.html"));
    ASSERT_TRUE(index.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(index.readAll());
    const QJsonArray axes =
        QJsonDocument::fromJson(html.section("const axes = ", 1).section(";\n", 0, 0).toUtf8()).array();
    ASSERT_EQ(axes.size(), 5);
    qsizetype all = 1;
    for (const QJsonValue axis : axes) {
        EXPECT_GE(axis["values"].toArray().size(), 2) << axis["name"].toString().toStdString();
        all *= axis["values"].toArray().size();
    }

    // By screen, theme, language, text size and size.
    std::map<QStringList, QImage> gallery;
    for (const QString& name : QDir(folder.path()).entryList({"*.png"}, QDir::Files)) {
        const QImage picture(folder.filePath(name));
        QImage blank = picture;
        blank.fill(picture.pixel(0, picture.height() - 1));
        EXPECT_NE(picture, blank) << name.toStdString();
        gallery[name.chopped(4).split('.')] = picture;
    }
    EXPECT_EQ(gallery.size(), all);
    for (const auto& [name, picture] : gallery) {
        SCOPED_TRACE(name.join('.').toStdString());
        EXPECT_EQ(QStringLiteral("%1x%2").arg(picture.width()).arg(picture.height()), name[4]);
        for (int axis = 0; axis < 5; ++axis) {
            // What was sent is what this screen tells, in one language.
            if (axis == 2 && name[0] == "some-sent") {
                continue;
            }
            for (const QJsonValue value : axes[axis]["values"].toArray()) {
                QStringList other = name;
                other[axis] = value.toString();
                EXPECT_TRUE(other == name || picture != gallery[other]) << other.join('.').toStdString();
            }
        }
    }
}

TEST_F(GalleryProgram, FailsWhereItCannotWrite) {
    // Each stands where the program wants to put something of its own.
    for (const char* const taken :
         {"out/loading.light.es.100.320x568.png", "out/loading.light.xb.100.320x568.png", "in/index.html"}) {
        ASSERT_TRUE(QDir(folder.path()).mkpath(taken));
    }
    QFile file(folder.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const std::pair<QStringList, QString> cases[] = {
        {{folder.filePath("file")}, "cannot make the folder " + folder.filePath("file")},
        {{folder.filePath("in")}, "cannot write " + folder.filePath("in/index.html")},
        {{folder.filePath("out")}, "cannot write " + folder.filePath("out/loading.light.xb.100.320x568.png")},
        {{folder.filePath("out")}, "the gallery has gaps or warnings"},
        {{folder.filePath("out"), "--gallery-language", "fi"}, "the gallery has no language fi"},
    };
    for (const auto& [arguments, expected] : cases) {
        EXPECT_EQ(run(QStringList{"--gallery"} + arguments + QStringList{"--quick"}), 1);
        EXPECT_TRUE(complaint.contains("quillet-host: " + expected + "\n")) << complaint.toStdString();
    }
}

} // namespace demo::testing
