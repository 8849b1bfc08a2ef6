#include "HostProgram.hpp"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

#include <map>
#include <set>

namespace demo::testing {

namespace {

/// Pictures by screen, theme, language, text size and size, as their names have them.
using Gallery = std::map<QStringList, QImage>;

Gallery read(const QString& folder) {
    Gallery gallery;
    for (const QString& name : QDir(folder).entryList({"*.png"}, QDir::Files)) {
        gallery[name.chopped(4).split('.')] = QImage(folder + '/' + name);
    }
    return gallery;
}

bool isBlank(const QImage& picture) {
    std::set<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            colors.insert(picture.pixel(x, y));
        }
    }
    // The edges of letters alone have more.
    return colors.size() < 16;
}

/// The axes that the index names, and each one's values.
QJsonArray axesOf(const QString& index) {
    QFile file(index);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray html = file.readAll();
    const auto begin = html.indexOf("const axes = ") + 13;
    return QJsonDocument::fromJson(html.mid(begin, html.indexOf(";\n", begin) - begin)).array();
}

struct Axis {
    const char* name;
    qsizetype place;
    /// Where a difference along the axis can be seen: the texts of the other screens are in one language.
    QStringList screens;
};

struct GalleryProgram : ::testing::Test, HostProgram {};

} // namespace

TEST_F(GalleryProgram, ShowsADifferenceAlongEachAxis) {
    const QString out = folder.filePath("out");
    ASSERT_EQ(run({"--gallery", out, "--quick"}), 0) << complaint.toStdString();
    EXPECT_EQ(complaint.toStdString(), "");
    const Gallery gallery = read(out);
    for (const auto& [name, picture] : gallery) {
        EXPECT_FALSE(isBlank(picture)) << name.join('.').toStdString();
        EXPECT_EQ(QStringLiteral("%1x%2").arg(picture.width()).arg(picture.height()), name[4]);
    }

    const QStringList all{"loading", "order-registered", "summary", "some-sent"};
    const Axis axes[] = {{"screen", 0, all},
                         {"theme", 1, all},
                         {"language", 2, {"loading", "order-registered", "summary"}},
                         {"text size", 3, all},
                         {"size", 4, all}};
    const QJsonArray listed = axesOf(out + "/index.html");
    ASSERT_EQ(listed.size(), qsizetype(std::size(axes)));
    std::size_t pictures = 1;
    for (const auto& [axis, place, screens] : axes) {
        SCOPED_TRACE(axis);
        EXPECT_EQ(listed[place]["name"], axis);
        const QJsonArray values = listed[place]["values"].toArray();
        EXPECT_GE(values.size(), 2);
        pictures *= static_cast<std::size_t>(values.size());
        for (const auto& [name, picture] : gallery) {
            for (const QJsonValue value : values) {
                QStringList other = name;
                other[place] = value.toString();
                ASSERT_TRUE(gallery.contains(other)) << other.join('.').toStdString();
                if (other != name && screens.contains(name[0])) {
                    EXPECT_NE(picture, gallery.at(other))
                        << name.join('.').toStdString() << " and " << other.join('.').toStdString();
                }
            }
        }
    }
    EXPECT_EQ(gallery.size(), pictures);
}

TEST_F(GalleryProgram, FailsWhereItCannotWrite) {
    // Each stands where the program wants to put something of its own.
    QFile file(folder.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(QDir(folder.path()).mkpath("out/loading.light.xb.100.320x568.png"));
    ASSERT_TRUE(QDir(folder.path()).mkpath("in/index.html"));
    const std::pair<QString, QStringList> cases[] = {
        {"file", {"cannot make the folder " + folder.filePath("file")}},
        {"out", {"cannot write " + folder.filePath("out/loading.light.xb.100.320x568.png"), "has gaps"}},
        {"in", {"cannot write " + folder.filePath("in/index.html")}},
    };
    for (const auto& [name, complaints] : cases) {
        EXPECT_EQ(run({"--gallery", folder.filePath(name), "--quick"}), 1);
        for (const QString& expected : complaints) {
            EXPECT_TRUE(complaint.contains(expected)) << complaint.toStdString();
        }
    }
    EXPECT_EQ(run({"--gallery", folder.filePath("out"), "--gallery-language", "fi"}), 1);
    EXPECT_EQ(complaint, "quillet-host: the gallery has no language fi\n");
}

} // namespace demo::testing
