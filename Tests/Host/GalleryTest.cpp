#include "HostProgram.hpp"

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>

#include <set>

namespace demo::testing {

namespace {

using GalleryProgram = HostProgram;

} // namespace

TEST_F(GalleryProgram, ShowsADifferenceAlongEachAxis) {
    ASSERT_EQ(run({"--gallery", folder.path(), "--quick"}), 0) << complaint;
    EXPECT_EQ(complaint, "");
    QFile index(folder.filePath("index.html"));
    ASSERT_TRUE(index.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(index.readAll());
    const QJsonArray axes =
        QJsonDocument::fromJson(html.section("const axes = ", 1).section(";\n", 0, 0).toUtf8()).array();
    qsizetype all = 1;
    for (const QJsonValue axis : axes) {
        EXPECT_GE(axis["values"].toArray().size(), 2) << axis["name"].toString().toStdString();
        all *= axis["values"].toArray().size();
    }

    std::set<QByteArray> pictures;
    for (const QString& file : QDir(folder.path()).entryList({"*.png"})) {
        SCOPED_TRACE(file.toStdString());
        const QImage picture(folder.filePath(file));
        pictures.emplace(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes());
        // By screen, theme, language, text size and size.
        const QStringList name = file.chopped(4).split('.');
        ASSERT_EQ(name.size(), axes.size());
        EXPECT_EQ(QStringLiteral("%1x%2").arg(picture.width()).arg(picture.height()), name[4]);
        for (qsizetype axis = 0; axis < name.size(); ++axis) {
            EXPECT_TRUE(axes[axis]["values"].toArray().contains(name[axis]));
        }
    }
    EXPECT_EQ(pictures.size(), all);
}

TEST_F(GalleryProgram, FailsWhereItCannotWriteAPicture) {
    for (const char* const language : {"es", "xb"}) {
        const auto taken = QStringLiteral("loading.light.%1.100.320x568.png").arg(language);
        ASSERT_TRUE(QDir(folder.path()).mkpath(taken));
    }
    EXPECT_EQ(run({"--gallery", folder.path(), "--quick"}), 1);
    for (const char* const file : {"loading.light.es.100.320x568.png", "loading.light.xb.100.320x568.png"}) {
        EXPECT_NE(complaint.find("cannot write " + folder.filePath(file).toStdString()), std::string::npos);
    }
}

} // namespace demo::testing
