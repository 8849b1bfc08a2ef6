#include "Looks.hpp"

#include "KelDS/KelDS.hpp"
#include "KelDS/KelIcons.hpp"
#include "Views/ProgressIndicatorCircular/ProgressIndicatorItem.hpp"

#include <QMetaEnum>
#include <QUrl>

#include <algorithm>
#include <array>
#include <map>
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

QVariant valueOf(const QObject& object, const char* path) {
    const QList<QByteArray> names = QByteArray(path).split('.');
    return names.size() < 2 ? object.property(path)
                            : object.property(names[0]).value<QObject*>()->property(names[1]);
}

bool has(const QQuickItem& item, const char* property) {
    return item.metaObject()->indexOfProperty(property) >= 0;
}

QString sizeOf(const QRectF& place) {
    return QStringLiteral("%1x%2").arg(std::lround(place.width())).arg(std::lround(place.height()));
}

QString weightName(int weight) {
    static const std::map<int, QString> names{{QFont::Normal, QStringLiteral("regular")},
                                              {QFont::Medium, QStringLiteral("medium")},
                                              {QFont::DemiBold, QStringLiteral("semibold")}};
    const auto found = names.find(weight);
    return found == names.end() ? QString::number(weight) : found->second;
}

QString iconName(const QString& glyph) {
    const auto numbers = QMetaEnum::fromType<kel::KelIcons::Number>();
    for (int i = 0; i < numbers.keyCount(); ++i) {
        if (kel::KelIcons::glyph(numbers.value(i)) == glyph) {
            return QString::fromLatin1(numbers.key(i));
        }
    }
    return QStringLiteral("unknown");
}

QString describedText(const QQuickItem& item) {
    const QString text = item.property("text").toString();
    const auto font = item.property("font").value<QFont>();
    const QString color = colorName(item.property("color").value<QColor>());
    if (font.family() == kel::KelIcons::family()) {
        const QString turned =
            item.rotation() == 0 ? QString() : QStringLiteral(", turned %1").arg(item.rotation());
        return QStringLiteral("icon %1 %2, %3%4")
            .arg(iconName(text))
            .arg(font.pixelSize())
            .arg(color, turned);
    }
    static const std::map<int, QString> alignments{{Qt::AlignLeft, QStringLiteral("left")},
                                                   {Qt::AlignRight, QStringLiteral("right")},
                                                   {Qt::AlignHCenter, QStringLiteral("centre")}};
    return QStringLiteral("\"%1\" %2, %3 %4 %5, %6")
        .arg(text, color, font.family())
        .arg(font.pixelSize())
        .arg(weightName(font.weight()), alignments.at(item.property("effectiveHorizontalAlignment").toInt()));
}

QString describedBox(const QQuickItem& item, double opacity) {
    const auto edgeWidth = valueOf(item, "border.width").toDouble();
    auto fill = item.property("color").value<QColor>();
    auto edge = valueOf(item, "border.color").value<QColor>();
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

std::optional<Element> describe(const QQuickItem& item, double opacity) {
    const QRectF place = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    if (const auto* ring = qobject_cast<const quillet::ProgressIndicatorItem*>(&item)) {
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
        const bool isIcon = item.property("font").value<QFont>().family() == kel::KelIcons::family();
        return Element{describedText(item), place, false, !isIcon};
    }
    if (has(item, "source") && has(item, "status") && !item.property("source").toUrl().isEmpty()) {
        const QString name = item.property("source").toUrl().fileName();
        const bool isFrame = has(item, "horizontalTileMode");
        return Element{QStringLiteral("picture ") + name + (isFrame ? QString() : u' ' + sizeOf(place)),
                       place};
    }
    if (has(item, "radius") && has(item, "border")) {
        if (const QString line = describedBox(item, opacity); !line.isEmpty()) {
            return Element{line, place, item.height() > 4};
        }
    }
    return std::nullopt;
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

void collect(const QQuickItem& item, double opacity, Element& ground) {
    opacity *= item.opacity();
    if (!item.isVisible() || opacity == 0) {
        return;
    }
    // From bottom to top, as they are painted.
    std::multimap<double, const QQuickItem*> children;
    for (const QQuickItem* child : item.childItems()) {
        children.emplace(child->z(), child);
    }
    const auto above = children.lower_bound(0);
    for (auto child = children.begin(); child != above; ++child) {
        collect(*child->second, opacity, ground);
    }
    if (auto element = describe(item, opacity)) {
        put(ground, *std::move(element));
    }
    for (auto child = above; child != children.end(); ++child) {
        collect(*child->second, opacity, ground);
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
    const Element* previous = nullptr;
    std::optional<Element> last;
    while (!elements.empty()) {
        // To be beside another is not transitive, so this is no sort.
        const auto first = std::ranges::find_if(elements, [&](const Element& one) {
            return std::ranges::none_of(elements,
                                        [&](const Element& other) { return comesBefore(other, one); });
        });
        const auto next = first == elements.end() ? elements.begin() : first;
        const bool goesOn = previous && areInOneRow(*previous, *next);
        const QString size =
            next->isGround && !holdsText(*next) ? QStringLiteral(", ") + sizeOf(next->place) : QString();
        const auto* const mark = goesOn ? "+ " : "- ";
        lines << QString(2 * depth, u' ') + QLatin1String(mark) + next->line + size;
        write(std::exchange(next->above, {}), depth + 1, lines);
        last = *std::move(next);
        previous = &*last;
        elements.erase(next);
    }
}

} // namespace

QString colorName(const QColor& color) {
    const kel::KelPalette& theme = kel::KelAppearance::current().palette();
    const std::pair<const char*, QRgb> tokens[] = {{"background", theme.background},
                                                   {"surface", theme.surface},
                                                   {"primary", theme.primary},
                                                   {"onPrimary", theme.onPrimary},
                                                   {"highEmphasis", theme.highEmphasis},
                                                   {"mediumEmphasis", theme.mediumEmphasis},
                                                   {"lowEmphasis", theme.lowEmphasis},
                                                   {"success", theme.success},
                                                   {"alert", theme.alert},
                                                   {"warning", theme.warning},
                                                   {"link", theme.link},
                                                   {"onTag", theme.onTag},
                                                   {"primaryEdge", theme.primaryEdge},
                                                   {"edge", theme.edge}};
    const auto* const token = std::ranges::find(tokens, color.rgb(), &std::pair<const char*, QRgb>::second);
    const QString name = token == std::end(tokens) ? color.name() : QString::fromLatin1(token->first);
    return color.alpha() == 255 ? name : name + QStringLiteral(" %1%").arg(std::lround(100 * color.alphaF()));
}

QStringList looksOf(QQuickItem& item) {
    Element all{{}, item.mapRectToScene(QRectF(0, 0, item.width(), item.height())), true};
    collect(item, 1, all);
    QStringList lines;
    write(std::move(all.above), 0, lines);
    return lines;
}

} // namespace demo::testing
