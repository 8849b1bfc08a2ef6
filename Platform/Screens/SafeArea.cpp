#include "Platform/Screens/SafeArea.hpp"

#include <QQuickWindow>

#include <algorithm>

namespace quillet::platform {

namespace {

/// The insets of an item, as a child of it.
class Insets final : public QObject {
public:
    explicit Insets(QQuickItem& area) : QObject(&area) {}
    QMarginsF margins;

    static Insets* of(const QQuickItem& area) {
        const auto& children = area.children();
        const auto found =
            std::ranges::find_if(children, [](QObject* child) { return dynamic_cast<Insets*>(child); });
        return found == children.end() ? nullptr : dynamic_cast<Insets*>(*found);
    }
};

QList<SafeArea*>& safeAreas() {
    static QList<SafeArea*> all;
    return all;
}

QMarginsF windowInsets([[maybe_unused]] const QQuickItem& item) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 9, 0)
    if (const QQuickWindow* window = item.window()) {
        return window->safeAreaMargins();
    }
#endif
    return {};
}

// What is left of an inset for an item that begins `distance` away from the edge, or reaches over it.
double remaining(double inset, double distance) {
    return std::max(0.0, inset - std::max(0.0, distance));
}

QMarginsF marginsWithin(const QQuickItem& item, const QQuickItem& area, const QMarginsF& insets) {
    const QRectF place = item.mapRectToItem(&area, QRectF(0, 0, item.width(), item.height()));
    return {remaining(insets.left(), place.left()), remaining(insets.top(), place.top()),
            remaining(insets.right(), area.width() - place.right()),
            remaining(insets.bottom(), area.height() - place.bottom())};
}

} // namespace

SafeArea::SafeArea(QObject* parent) : QObject(parent) {
    safeAreas().append(this);
}

SafeArea::~SafeArea() {
    safeAreas().removeOne(this);
}

void SafeArea::setInsets(QQuickItem& area, const QMarginsF& insets) {
    Insets* existing = Insets::of(area);
    Insets& own = existing ? *existing : *new Insets(area);
    own.margins = insets | QMarginsF();
    for (SafeArea* const one : safeAreas()) {
        one->measure();
    }
}

void SafeArea::setItem(QQuickItem* item) {
    if (item == item_) {
        return;
    }
    if (item_) {
        item_->disconnect(this);
    }
    item_ = item;
    if (item) {
        connect(item, &QQuickItem::xChanged, this, &SafeArea::measure);
        connect(item, &QQuickItem::yChanged, this, &SafeArea::measure);
        connect(item, &QQuickItem::widthChanged, this, &SafeArea::measure);
        connect(item, &QQuickItem::heightChanged, this, &SafeArea::measure);
        connect(item, &QQuickItem::windowChanged, this, &SafeArea::followWindow);
    }
    followWindow();
    Q_EMIT itemChanged();
}

void SafeArea::setInner(Qt::Edges edges) {
    if (edges != inner_) {
        inner_ = edges;
        measure();
        Q_EMIT innerChanged();
    }
}

void SafeArea::followWindow() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 9, 0)
    if (const QQuickWindow* window = item_ ? item_->window() : nullptr) {
        connect(window, &QWindow::safeAreaMarginsChanged, this, &SafeArea::measure, Qt::UniqueConnection);
    }
#endif
    measure();
}

void SafeArea::measure() {
    QMarginsF margins;
    if (item_) {
        const QQuickItem* area = item_;
        const QQuickItem* outermost = item_;
        const Insets* insets = nullptr;
        for (; area && !(insets = Insets::of(*area)); area = area->parentItem()) {
            outermost = area;
        }
        margins = insets ? marginsWithin(*item_, *area, insets->margins)
                         : marginsWithin(*item_, *outermost, windowInsets(*item_));
    }
    margins = {inner_ & Qt::LeftEdge ? 0 : margins.left(), inner_ & Qt::TopEdge ? 0 : margins.top(),
               inner_ & Qt::RightEdge ? 0 : margins.right(), inner_ & Qt::BottomEdge ? 0 : margins.bottom()};
    if (margins != margins_) {
        margins_ = margins;
        Q_EMIT changed();
    }
}

} // namespace quillet::platform
