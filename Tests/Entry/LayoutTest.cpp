#include "KelDS/KelDS.hpp"
#include "Support/ModuleTest.hpp"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMarginsF>

#include <ostream>

namespace quillet::testing {

namespace {

/// A text as it is drawn, in the window.
struct DrawnText {
    QString text;
    QRectF place;
    QFont font;
    /// The width of the item, in which the text is set.
    double room;

    friend void PrintTo(const DrawnText& drawn, std::ostream* stream) {
        const QRectF& at = drawn.place;
        *stream << '"' << drawn.text.toStdString() << "\" at " << at.x() << ", " << at.y() << ", "
                << at.width() << " x " << at.height();
    }
};

// Icons are characters of a font.
bool isIcon(const DrawnText& drawn) {
    return drawn.text.front().category() == QChar::Other_PrivateUse;
}

void collectTexts(const QQuickItem& item, std::vector<DrawnText>& texts, QRectF seen) {
    if (!item.isVisible() || item.opacity() == 0) {
        return;
    }
    if (item.clip()) {
        seen &= item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    }
    const QVariant width = item.property("contentWidth");
    const QString text = item.property("text").toString();
    if (width.isValid() && !text.isEmpty() && item.property("lineCount").isValid()) {
        // The number is that of Qt::AlignRight and Qt::AlignHCenter.
        const double drawn = width.toDouble();
        const int alignment = item.property("effectiveHorizontalAlignment").toInt();
        const double room = item.width() - drawn;
        const double x = alignment == Qt::AlignRight ? room : alignment == Qt::AlignHCenter ? room / 2 : 0;
        const double height = std::min(item.height(), item.property("contentHeight").toDouble());
        const QRectF place = item.mapRectToScene({x, (item.height() - height) / 2, drawn, height});
        if (place.intersects(seen)) {
            const QRectF rows(place.x(), seen.y(), place.width(), seen.height());
            texts.push_back({text, place & rows, item.property("font").value<QFont>(), item.width()});
        }
    }
    for (const QQuickItem* child : item.childItems()) {
        collectTexts(*child, texts, seen);
    }
}

void collectControls(QQuickItem& item, std::vector<QQuickItem*>& controls) {
    if (item.isVisible() && item.isEnabled()) {
        // What can be pressed has this property of AbstractButton's.
        if (item.property("pressed").isValid() && item.property("down").isValid() &&
            item.property("focusPolicy").toInt() != Qt::NoFocus) {
            controls.push_back(&item);
        }
        for (QQuickItem* child : item.childItems()) {
            collectControls(*child, controls);
        }
    }
}

struct Shape {
    Shape(int width, int height, double scale = 1, QMarginsF edges = {},
          Qt::LayoutDirection reading = Qt::LeftToRight)
        : size(width, height), textScale(scale), insets(edges), direction(reading) {}

    QSize size;
    double textScale;
    QMarginsF insets;
    Qt::LayoutDirection direction;

    friend void PrintTo(const Shape& shape, std::ostream* stream) {
        *stream << shape.size.width() << " x " << shape.size.height() << ", text " << shape.textScale
                << ", insets " << shape.insets.left() << ' ' << shape.insets.top() << ' '
                << shape.insets.right() << ' ' << shape.insets.bottom()
                << (shape.direction == Qt::RightToLeft ? ", mirrored" : "");
    }
};

struct Layout : ModuleTest, ::testing::WithParamInterface<Shape> {
    Layout() {
        kel::KelAppearance::current().setTextScale(GetParam().textScale);
        QGuiApplication::setLayoutDirection(GetParam().direction);
        stage.window().resize(size);
        setSafeAreaInsets(*stage.window().contentItem(), GetParam().insets);
    }
    ~Layout() override {
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        kel::KelAppearance::current().setTextScale(1);
    }

    // What is on the screen, and all of it within the safe part of the window.
    void check(const char* what) {
        SCOPED_TRACE(what);
        const QRectF safe = QRectF(QPointF(), QSizeF(size)).marginsRemoved(GetParam().insets);
        std::vector<DrawnText> texts;
        collectTexts(*stage.window().contentItem(), texts, QRectF(0, 0, size.width(), 1e6));
        EXPECT_GE(texts.size(), 2u);
        for (auto one = texts.begin(); one != texts.end(); ++one) {
            EXPECT_GE(one->place.left(), safe.left()) << ::testing::PrintToString(*one);
            EXPECT_LE(one->place.right(), safe.right() + 0.5) << ::testing::PrintToString(*one);
            for (auto other = one + 1; other != texts.end(); ++other) {
                // An icon's mark lies over the icon on purpose.
                EXPECT_FALSE(one->place.intersects(other->place) && !(isIcon(*one) && isIcon(*other)))
                    << ::testing::PrintToString(*one) << " and " << ::testing::PrintToString(*other);
            }
            for (const QString& word : one->text.split(u' ')) {
                const double needed = QFontMetricsF(one->font).horizontalAdvance(word);
                const bool fitsALine = needed <= safe.width() - 2 * 32;
                EXPECT_TRUE(isIcon(*one) || word.contains(u'<') || needed <= one->room + 0.5 || !fitsALine)
                    << word.toStdString() << " breaks in " << ::testing::PrintToString(*one);
            }
        }
        std::vector<QQuickItem*> controls;
        collectControls(*stage.window().contentItem(), controls);
        EXPECT_THAT(controls, Not(::testing::IsEmpty()));
        for (const QQuickItem* control : controls) {
            const std::string name = control->property("text").toString().toStdString();
            EXPECT_GE(control->width(), 44) << name;
            EXPECT_GE(control->height(), 44) << name;
            const QRectF place = control->mapRectToScene(QRectF(0, 0, control->width(), control->height()));
            EXPECT_GE(place.left(), safe.left()) << name;
            EXPECT_LE(place.right(), safe.right()) << name;
        }
    }

    // Where the keys are is in view, so that a page's last button can be looked at.
    void checkLastButton(const QString& button) {
        QQuickItem* const item = stage.item(button);
        item->forceActiveFocus(Qt::TabFocusReason);
        const double edge = size.height() - GetParam().insets.bottom();
        EXPECT_TRUE(turnUntil([&] {
            const double end = item->mapToScene({0, item->height()}).y();
            return end <= edge && end >= edge - 40;
        })) << item->mapToScene({0, item->height()}).y();
    }

    const QSize size = GetParam().size;
    // Its stack reaches all edges.
    Stage stage{R"(
        import QtQuick
        import QtQuick.Controls.Basic
        ApplicationWindow {
            width: 390; height: 844; visible: true
            property alias stack: stack
            property alias bar: bar
            function clear() { stack.pop(null, StackView.Immediate) }
            Item { id: bar; property int clicks: 0 }
            StackView { id: stack; anchors.fill: parent; initialItem: Item {} }
        })"};
};

} // namespace

TEST_P(Layout, KeepsTextsApartWholeAndInTheSafePartOfTheWindow) {
    backend->script(Call::associate, {Reply{.status = 500}, Reply::sample(Call::associate)});
    ASSERT_TRUE(turnUntil([&] { return stage.stack().width() == size.width(); }));
    ASSERT_TRUE(open(stage.stack()));
    ASSERT_TRUE(turnUntil([&] { return stage.shows("Volver"); }));
    check("try again");
    stage.popAll();

    ASSERT_TRUE(open(stage.stack()) && showSummary(stage));
    check("summary");
    EXPECT_EQ(stage.item("14/03/2026")->property("font").value<QFont>().pixelSize(),
              16 * GetParam().textScale);
    checkLastButton(send);
    ASSERT_TRUE(showResult(stage, stage.stack()));
    check("result");
    stage.key(Qt::Key_End);
    if (size.width() < 840) {
        ASSERT_TRUE(turnUntil([&] { return stage.shows("Ir al carrito"); }));
        checkLastButton("Ir al carrito");
    }
    check("the end of the result");
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, Layout,
    ::testing::Values(Shape{320, 568}, Shape{360, 780}, Shape{390, 844}, Shape{768, 1024}, Shape{1280, 800},
                      Shape{844, 390}, Shape{320, 568, 1.5}, Shape{320, 568, 2}, Shape{390, 844, 2},
                      Shape{844, 390, 2}, Shape{1280, 800, 2}, Shape{390, 844, 1, {0, 47, 0, 34}},
                      Shape{844, 390, 1, {47, 0, 47, 21}}, Shape{1280, 800, 1, {60, 0, 20, 20}},
                      Shape{390, 844, 1, {}, Qt::RightToLeft},
                      Shape{320, 568, 2, {0, 0, 30, 0}, Qt::RightToLeft},
                      Shape{1280, 800, 1, {60, 0, 20, 20}, Qt::RightToLeft}));

} // namespace quillet::testing
