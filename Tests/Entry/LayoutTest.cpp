#include "KelDS/KelDS.hpp"
#include "Support/ModuleTest.hpp"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMarginsF>

#include <ostream>
#include <regex>

namespace quillet::testing {

namespace {

const std::string longestNumber = "18446744073709551615";

using Look = std::function<void(const QQuickItem&, const QRectF&)>;

/// Of a text, where it is drawn.
QRectF placeOf(const QQuickItem& item) {
    return item.mapRectToScene(item.boundingRect());
}

/// Goes through all that is visible, with the part of the window in which it is seen.
void visit(const QQuickItem& item, QRectF seen, const Look& look) {
    if (!item.isVisible() || item.opacity() == 0) {
        return;
    }
    if (item.clip()) {
        seen &= placeOf(item);
    }
    look(item, seen);
    for (const QQuickItem* child : item.childItems()) {
        visit(*child, seen, look);
    }
}

QString textOf(const QQuickItem& item) {
    return item.property("text").toString();
}

bool isText(const QQuickItem& item) {
    return item.property("lineCount").isValid() && !textOf(item).isEmpty();
}

// Icons are characters of a font.
bool isIcon(const QQuickItem& item) {
    return textOf(item).front().category() == QChar::Other_PrivateUse;
}

bool isButton(const QQuickItem& item) {
    return item.inherits("QQuickAbstractButton") && item.isEnabled() &&
           item.property("focusPolicy").toInt() != Qt::NoFocus;
}

struct Shape {
    QSize size;
    double textScale = 1;
    QMarginsF insets = {};
    Qt::LayoutDirection direction = Qt::LeftToRight;

    friend void PrintTo(const Shape& shape, std::ostream* stream) {
        *stream << shape.size.width() << " x " << shape.size.height() << ", text " << shape.textScale
                << (shape.insets.isNull() ? "" : ", insets")
                << (shape.direction == Qt::RightToLeft ? ", mirrored" : "");
    }
};

struct Layout : ModuleTest, ::testing::WithParamInterface<Shape> {
    Layout() {
        kel::KelAppearance::current().setTextScale(GetParam().textScale);
        QGuiApplication::setLayoutDirection(GetParam().direction);
        // Its stack reaches all edges.
        stage->bar().setHeight(0);
        stage->window().resize(size);
        setSafeAreaInsets(*stage->window().contentItem(), GetParam().insets);
    }
    ~Layout() override {
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        kel::KelAppearance::current().setTextScale(1);
    }

    void checkWords(const QQuickItem& text, double available) {
        for (const QString& word : textOf(text).split(u' ')) {
            const double needed = QFontMetricsF(text.property("font").value<QFont>()).horizontalAdvance(word);
            const bool fitsALine = needed <= available - 2 * 32;
            const bool mayBreak = isIcon(text) || word.contains(u'<') || word == longestNumber.c_str();
            EXPECT_TRUE(mayBreak || needed <= text.width() + 0.5 || !fitsALine)
                << word.toStdString() << " breaks";
        }
    }

    // What is on the screen, and all of it within the safe part of the window.
    void check(const char* what) {
        SCOPED_TRACE(what);
        const QRectF safe = QRectF(QPointF(), QSizeF(size)).marginsRemoved(GetParam().insets);
        std::vector<std::pair<const QQuickItem*, QRectF>> texts;
        int buttons = 0;
        visit(*stage->window().contentItem(), QRectF(0, 0, size.width(), 1e6),
              [&](const auto& item, auto seen) {
                  const QRectF place = placeOf(item);
                  const bool isSeenText = isText(item) && place.intersects(seen);
                  SCOPED_TRACE(textOf(item).toStdString());
                  if (isSeenText || isButton(item)) {
                      EXPECT_GE(place.left(), safe.left());
                      EXPECT_LE(place.right(), safe.right() + 0.5);
                  }
                  for (const auto& [other, otherPlace] : texts) {
                      // An icon's mark lies over the icon on purpose.
                      const bool mayMeet = !isSeenText || (isIcon(item) && isIcon(*other));
                      EXPECT_TRUE(mayMeet || !(place & seen).intersects(otherPlace))
                          << textOf(*other).toStdString();
                  }
                  if (isSeenText) {
                      checkWords(item, safe.width());
                      texts.emplace_back(&item, place & seen);
                  }
                  if (isButton(item)) {
                      ++buttons;
                      EXPECT_GE(std::min(place.width(), place.height()), 44);
                  }
              });
        EXPECT_GE(texts.size(), 2u);
        EXPECT_GE(buttons, 1);
    }

    // Where the keys are is in view, so that a page's last button can be looked at.
    void checkLastButton(const QString& button) {
        QQuickItem* const item = stage->item(button);
        item->forceActiveFocus(Qt::TabFocusReason);
        const double edge = size.height() - GetParam().insets.bottom();
        EXPECT_TRUE(turnUntil([&] {
            const double end = item->mapToScene({0, item->height()}).y();
            return end <= edge && end >= edge - 40;
        })) << item->mapToScene({0, item->height()}).y();
    }

    const QSize size = GetParam().size;
};

} // namespace

TEST_P(Layout, KeepsTextsApartWholeAndInTheSafePartOfTheWindow) {
    backend->script(Call::associate, {Reply{.status = 500}, Reply::sample(Call::associate)});
    const std::regex number(R"re("(addedPoints|productCode|quantity|totalPoints)":\d+)re");
    backend->script(Call::checkout, {Reply{.body = std::regex_replace(sampleBody(Call::checkout), number,
                                                                      "\"$1\":" + longestNumber)}});
    ASSERT_TRUE(turnUntil([&] { return stage->stack().width() == size.width(); }));
    open();
    ASSERT_TRUE(comesToShow("Volver"));
    check("try again");
    stage->popAll();

    open();
    clickThrough({viewOrders}, send);
    check("summary");
    EXPECT_EQ(stage->item("14/03/2026")->property("font").value<QFont>().pixelSize(),
              16 * GetParam().textScale);
    checkLastButton(send);
    clickThrough({send}, someSent);
    check("result");
    stage->key(Qt::Key_End);
    if (size.width() < 840) {
        ASSERT_TRUE(comesToShow(goToCart));
        checkLastButton(goToCart);
    }
    check("the end of the result");
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, Layout,
    ::testing::Values(Shape{{320, 568}}, Shape{{360, 780}}, Shape{{390, 844}}, Shape{{768, 1024}},
                      Shape{{1280, 800}}, Shape{{844, 390}}, Shape{{320, 568}, 1.5}, Shape{{320, 568}, 2},
                      Shape{{390, 844}, 2}, Shape{{844, 390}, 2}, Shape{{1280, 800}, 2},
                      Shape{{390, 844}, 1, {0, 47, 0, 34}}, Shape{{844, 390}, 1, {47, 0, 47, 21}},
                      Shape{{1280, 800}, 1, {60, 0, 20, 20}}, Shape{{390, 844}, 1, {}, Qt::RightToLeft},
                      Shape{{320, 568}, 2, {0, 0, 30, 0}, Qt::RightToLeft},
                      Shape{{1280, 800}, 1, {60, 0, 20, 20}, Qt::RightToLeft}));

} // namespace quillet::testing
