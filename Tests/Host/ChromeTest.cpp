#include "Play/PlayRunner.hpp"
#include "Play/WarningCounter.hpp"

#include "KelDS/KelAppearance.hpp"
#include "KelDS/KelMeasures.hpp"

#include <QGuiApplication>
#include <QTemporaryDir>
#include <QtTest/qtestsystem.h>

#include <gtest/gtest.h>

#include <memory>

namespace demo::testing {

namespace {

constexpr auto orders = R"([{"customer": "Florencia Vergara Contreras", "title": "Order already submitted",
                             "message": "¡Hola! Te mando mi pedido de la revista.", "consultant": "41051"}])";

/// The host with pages of its own, and no gateway.
struct Chrome : ::testing::Test {
    Chrome() { EXPECT_TRUE(host->load(host)); }
    ~Chrome() override {
        apply({});
        EXPECT_EQ(WarningCounter::count(), 0);
    }

    QQuickItem& item(const char* name) const {
        // Items made by views have no parent but a visual one.
        QList<QQuickItem*> items{host->phone()};
        for (qsizetype i = 0; i < items.size(); ++i) {
            if (items[i]->objectName() == QLatin1String(name)) {
                return *items[i];
            }
            items << items[i]->childItems();
        }
        ADD_FAILURE() << "no " << name;
        return *host->phone();
    }
    QRectF place(const char* name) const {
        const QQuickItem& found = item(name);
        return found.mapRectToItem(host->phone(), QRectF(0, 0, found.width(), found.height()));
    }
    QQuickItem& stack() const { return *host->window()->property("stack").value<QQuickItem*>(); }
    QQuickItem& page() const { return *stack().property("currentItem").value<QQuickItem*>(); }
    bool settle() const {
        return QTest::qWaitFor(
            [&] { return !stack().property("busy").toBool() && host->phone()->size() == area.size(); });
    }
    /// Every text in the phone-sized area that does not fit into it, or into its own box.
    QStringList cutTexts() const {
        QStringList cut;
        const QRectF phone(QPointF(), host->phone()->size());
        for (auto* text : host->phone()->findChildren<QQuickItem*>()) {
            if (!text->property("truncated").isValid() || !text->isVisible() ||
                text->property("text").toString().isEmpty()) {
                continue;
            }
            const QRectF box =
                text->mapRectToItem(host->phone(), QRectF(0, 0, text->width(), text->height()));
            if (text->property("truncated").toBool() ||
                text->property("contentWidth").toDouble() > text->width() + 1 ||
                text->property("contentHeight").toDouble() > text->height() + 1 ||
                box.left() < phone.left() || box.right() > phone.right()) {
                cut << text->property("text").toString();
            }
        }
        return cut;
    }

    const WarningCounter warnings;
    Journal journal;
    LiveStatus status;
    PhoneArea area{QSize(320, 568), false};
    std::shared_ptr<HostApplication> host =
        std::make_shared<HostApplication>(journal, status, area, QByteArray(orders));
};

} // namespace

TEST_F(Chrome, KeepsOffTheEdgesAndTurnsRound) {
    const struct {
        bool mirrored;
        QMarginsF insets;
        double back;
        double titleLeft;
        double titleRight;
        double barBottom;
    } cases[] = {
        {.mirrored = false, .insets = {}, .back = 0, .titleLeft = 56, .titleRight = 304, .barBottom = 56},
        {.mirrored = true, .insets = {}, .back = 264, .titleLeft = 16, .titleRight = 264, .barBottom = 56},
        {.mirrored = false,
         .insets = {20, 44, 30, 34},
         .back = 20,
         .titleLeft = 76,
         .titleRight = 274,
         .barBottom = 100},
        {.mirrored = true,
         .insets = {20, 44, 30, 34},
         .back = 234,
         .titleLeft = 36,
         .titleRight = 234,
         .barBottom = 100},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(::testing::Message()
                     << "mirrored " << expected.mirrored << ", top inset " << expected.insets.top());
        apply({.direction = expected.mirrored ? Qt::RightToLeft : Qt::LeftToRight});
        quillet::setSafeAreaInsets(*host->phone(), expected.insets);
        host->close();
        ASSERT_TRUE(settle());
        const double card = expected.insets.left() + 16;
        EXPECT_EQ(place("hostOrder").left(), card);
        EXPECT_EQ(place("hostOrder").right(), 320 - expected.insets.right() - 16);
        EXPECT_EQ(place("hostOrder").top(), expected.barBottom + 16);

        host->navigateToCart();
        ASSERT_TRUE(settle());
        EXPECT_EQ(place("hostBack").left(), expected.back);
        EXPECT_EQ(place("hostBack").top(), expected.insets.top());
        EXPECT_EQ(item("hostBack").rotation(), expected.mirrored ? 180 : 0);
        EXPECT_EQ(place("hostTitle").left(), expected.titleLeft);
        EXPECT_EQ(place("hostTitle").right(), expected.titleRight);
        EXPECT_EQ(place("hostBar").bottom(), expected.barBottom);
        EXPECT_EQ(place("hostMessage").left(), expected.insets.left() + 32);
        EXPECT_EQ(place("hostMessage").right(), 320 - expected.insets.right() - 32);
    }
}

TEST_F(Chrome, MovesItsPagesByDirectionOrFadesThem) {
    const struct {
        Appearance appearance;
        double side;
    } cases[] = {
        {{.direction = Qt::LeftToRight}, 1},
        {{.direction = Qt::RightToLeft}, -1},
        {{.reducedMotion = true, .direction = Qt::LeftToRight}, 0},
        {{.reducedMotion = true, .direction = Qt::RightToLeft}, 0},
    };
    for (const auto& [appearance, side] : cases) {
        SCOPED_TRACE(::testing::Message() << "side " << side);
        apply(appearance);
        const double from = side * stack().width();
        host->navigateToCart();
        const QQuickItem& shown = page();
        EXPECT_EQ(shown.x(), from);
        EXPECT_EQ(shown.opacity(), side == 0 ? 0 : 1);
        ASSERT_TRUE(settle());
        EXPECT_EQ(shown.x(), 0);
        EXPECT_EQ(shown.opacity(), 1);
        host->close();
        const QQuickItem& home = page();
        EXPECT_EQ(home.x(), -side * kel::KelSizes::large);
        ASSERT_TRUE(settle());
        EXPECT_EQ(home.x(), 0);
        EXPECT_EQ(home.opacity(), 1);
    }
}

TEST_F(Chrome, CutsNoTextAtTwiceTheSize) {
    for (const QSize size : {QSize(320, 568), QSize(844, 390)}) {
        SCOPED_TRACE(size.width());
        area.resize(size);
        apply({.textScale = 200, .direction = Qt::LeftToRight});
        host->close();
        ASSERT_TRUE(settle());
        EXPECT_EQ(cutTexts().join(", ").toStdString(), "");
        host->navigateToShareMagazine();
        ASSERT_TRUE(settle());
        EXPECT_EQ(cutTexts().join(", ").toStdString(), "");
        EXPECT_GE(place("hostBar").height(), item("hostTitle").implicitHeight());
        // The page need not scroll any more, and Qt warns where it then gives up the keys.
        page().forceActiveFocus(Qt::TabFocusReason);
        apply({.direction = Qt::LeftToRight});
    }
}

TEST_F(Chrome, BeginsEachPlayAsTheProcessBegan) {
    const QTemporaryDir folder;
    NetworkSwitch network({});
    const Appearance started{.theme = kel::KelTheme::dark, .textScale = 130, .direction = Qt::LeftToRight};
    PlayRunner runner(*host, journal, network, started, folder.path());
    const auto changed = parsePlay("p", "theme contrast\ntext-scale 200\nmotion reduced\ndirection rtl\n"
                                        "insets 44 10 34 20\nsize 844x390\n");
    EXPECT_TRUE(runner.run(*changed)["ok"].toBool());
    const auto& current = kel::KelAppearance::current();
    EXPECT_EQ(current.theme(), kel::KelTheme::contrast);
    EXPECT_EQ(current.textScale(), 2);
    EXPECT_TRUE(current.hasReducedMotion());
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(place("hostOrder").left(), 20 + 16);

    EXPECT_TRUE(runner.run(*parsePlay("p", "close\n"))["ok"].toBool());
    EXPECT_EQ(current.theme(), kel::KelTheme::dark);
    EXPECT_EQ(current.textScale(), 1.3);
    EXPECT_FALSE(current.hasReducedMotion());
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    EXPECT_EQ(place("hostOrder").left(), 16);
    EXPECT_TRUE(QTest::qWaitFor([&] { return host->phone()->size() == QSizeF(320, 568); }));
}

} // namespace demo::testing
