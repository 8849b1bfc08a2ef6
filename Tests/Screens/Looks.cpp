#include "Looks.hpp"

#include "KelDS/KelDS.hpp"
#include "KelDS/KelIcons.hpp"
#include "Play/Items.hpp"
#include "Views/ProgressIndicatorCircular/ProgressIndicatorItem.hpp"

#include <QMetaEnum>
#include <QQmlProperty>
#include <QUrl>

#include <algorithm>
#include <optional>
#include <ranges>
#include <utility>
#include <vector>

namespace demo::testing {

namespace {

struct Element {
    QString line;
    QRectF place;
    /// Whether others can lie on it.
    bool isGround = false;
    bool isText = false;
    std::vector<Element> above = {};
};

/// Text makes what is around it as large as its font asks for.
bool holdsText(const Element& element) {
    return element.isText || std::ranges::any_of(element.above, holdsText);
}

/// The name of the theme's colour that this one is, or its digits; how opaque it is where that is less than
/// wholly.
QString colorName(const QColor& color) {
    // Of those that have one colour in a theme, the first is the one that is meant.
    const auto tokens = {"background",     "surface",     "primary",     "inkOnPrimary", "highEmphasis",
                         "mediumEmphasis", "lowEmphasis", "success",     "alert",        "warning",
                         "link",           "inkOnTag",    "primaryEdge", "edge"};
    const kel::KelColors theme;
    const auto* const token = std::ranges::find_if(
        tokens, [&](const char* one) { return theme.property(one).value<QColor>().rgb() == color.rgb(); });
    const QString name = token == tokens.end() ? color.name() : QString::fromLatin1(*token);
    return color.alpha() == 255 ? name : name + QStringLiteral(" %1%").arg(std::lround(100 * color.alphaF()));
}

QString sizeOf(const QRectF& place) {
    return QStringLiteral("%1x%2").arg(std::lround(place.width())).arg(std::lround(place.height()));
}

/// The value's name in an enumeration of Qt's.
template <typename Enum>
QString keyOf(int value) {
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(value));
}

QString describedText(const QQuickItem& item) {
    const QString text = item.property("text").toString();
    const auto font = item.property("font").value<QFont>();
    const QString color = colorName(item.property("color").value<QColor>());
    if (has(item, "number")) {
        const QString turned =
            item.rotation() == 0 ? QString() : QStringLiteral(", turned %1").arg(item.rotation());
        return QStringLiteral("icon %1 %2, %3%4")
            .arg(keyOf<kel::KelIcons::Number>(item.property("number").toInt()))
            .arg(font.pixelSize())
            .arg(color, turned);
    }
    const auto alignment = item.property("effectiveHorizontalAlignment").toInt();
    return QStringLiteral("\"%1\" %2, %3 %4 %5, %6")
        .arg(text, color, font.family())
        .arg(font.pixelSize())
        .arg(keyOf<QFont::Weight>(font.weight()), keyOf<Qt::Alignment>(alignment).remove("Align"));
}

QString describedBox(QQuickItem& item, double opacity) {
    const auto edgeWidth = QQmlProperty::read(&item, "border.width").toDouble();
    auto fill = item.property("color").value<QColor>();
    auto edge = QQmlProperty::read(&item, "border.color").value<QColor>();
    fill.setAlphaF(static_cast<float>(fill.alphaF() * opacity));
    edge.setAlphaF(static_cast<float>(edge.alphaF() * opacity));
    // An edge that nobody set cannot be told from a black one, which no theme has.
    const bool hasEdge = edgeWidth > 0 && edge.alpha() > 0 && edge != Qt::black;
    if (fill.alpha() == 0 && !hasEdge) {
        return {};
    }
    if (item.height() <= 1) {
        return QStringLiteral("line %1, %2 long").arg(colorName(fill)).arg(std::lround(item.width()));
    }
    if (item.height() <= 4) {
        return QStringLiteral("bar %1, %2 high").arg(colorName(fill)).arg(item.height());
    }
    QString line = QStringLiteral("box ") + (fill.alpha() == 0 ? QStringLiteral("clear") : colorName(fill));
    if (hasEdge) {
        line += QStringLiteral(", edge %1 %2").arg(colorName(edge)).arg(edgeWidth);
    }
    const double radius = item.property("radius").toDouble();
    if (radius > 0) {
        const bool isRound = radius >= std::min(item.width(), item.height()) / 2;
        line += isRound ? QStringLiteral(", round") : QStringLiteral(", corners %1").arg(radius);
    }
    return item.objectName().isEmpty() ? line : line + QStringLiteral(" #") + item.objectName();
}

std::optional<Element> describe(QQuickItem& item, double opacity) {
    const QRectF place = sceneRect(item);
    if (const auto* ring = qobject_cast<quillet::ProgressIndicatorItem*>(&item)) {
        const auto& arc = *ring->indicator()->semiCircleLayer();
        return Element{QStringLiteral("ring %1, %2, %3 thick")
                           .arg(sizeOf(place), colorName(arc.strokeColor.value_or(QColor())))
                           .arg(arc.lineWidth),
                       place};
    }
    if (has(item, "flickDeceleration")) {
        return Element{QStringLiteral("scrolling:"), place, true};
    }
    if (has(item, "lineCount") && !item.property("text").toString().isEmpty()) {
        return Element{describedText(item), place, false, !has(item, "number")};
    }
    if (has(item, "source") && has(item, "status") && !item.property("source").toUrl().isEmpty()) {
        const QString name = item.property("source").toUrl().fileName();
        const bool isFrame = has(item, "horizontalTileMode");
        return Element{QStringLiteral("picture ") + name + (isFrame ? QString() : u' ' + sizeOf(place)),
                       place};
    }
    const QString box = has(item, "radius") && has(item, "border") ? describedBox(item, opacity) : QString();
    return box.isEmpty() ? std::nullopt : std::optional(Element{box, place, item.height() > 4});
}

/// Puts an element on the last of the grounds that it lies on. What is as large as its ground leaves nothing
/// of the others on it to be used.
void put(Element& ground, Element element) {
    for (Element& other : ground.above | std::views::reverse) {
        if (other.isGround && other.place.contains(element.place.center())) {
            return put(other, std::move(element));
        }
    }
    if (element.isGround && element.place.contains(ground.place)) {
        ground.above.clear();
    }
    ground.above.push_back(std::move(element));
}

void collect(QQuickItem& item, double opacity, Element& ground) {
    opacity *= item.opacity();
    if (!item.isVisible() || opacity == 0) {
        return;
    }
    // Those below zero lie under the item itself.
    QList<QQuickItem*> parts = paintOrder(item);
    parts.insert(std::ranges::lower_bound(parts, 0, {}, &QQuickItem::z), &item);
    for (QQuickItem* part : parts) {
        if (part != &item) {
            collect(*part, opacity, ground);
        } else if (auto element = describe(item, opacity)) {
            put(ground, *std::move(element));
        }
    }
}

bool areInOneRow(const Element& one, const Element& other) {
    const double shared =
        std::min(one.place.bottom(), other.place.bottom()) - std::max(one.place.top(), other.place.top());
    return shared > std::min(one.place.height(), other.place.height()) / 2;
}

bool comesBefore(const Element& one, const Element& other) {
    return areInOneRow(one, other) ? one.place.center().x() < other.place.center().x()
                                   : one.place.center().y() < other.place.center().y();
}

void write(std::vector<Element> elements, int depth, QStringList& lines) {
    std::optional<Element> previous;
    while (!elements.empty()) {
        // To be beside another is not transitive, so this is no sort.
        const auto next = std::ranges::min_element(elements, comesBefore);
        const bool goesOn = previous && areInOneRow(*previous, *next);
        lines << QString(2 * depth, u' ') + (goesOn ? "+ " : "- ") + next->line;
        if (next->isGround && !holdsText(*next)) {
            lines.last() += ", " + sizeOf(next->place);
        }
        previous = std::move(*next);
        elements.erase(next);
        write(std::move(previous->above), depth + 1, lines);
    }
}

} // namespace

QStringList looksOf(QQuickItem& item) {
    Element all{{}, sceneRect(item), true};
    collect(item, 1, all);
    QStringList lines;
    write(std::move(all.above), 0, lines);
    return lines;
}

} // namespace demo::testing
