#include "Play/Items.hpp"

#include <map>
#include <ranges>

namespace demo {

QList<QQuickItem*> paintOrder(const QQuickItem& item) {
    // Equal keys keep the order in which they came. A stable sort's temporary buffer comes, in libstdc++ 12,
    // from a function that Clang warns of.
    std::multimap<double, QQuickItem*> byHeight;
    for (QQuickItem* child : item.childItems()) {
        byHeight.emplace(child->z(), child);
    }
    const auto children = byHeight | std::views::values;
    return {children.begin(), children.end()};
}

bool has(const QQuickItem& item, const char* property) {
    return item.metaObject()->indexOfProperty(property) >= 0;
}

QRectF sceneRect(const QQuickItem& item) {
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

} // namespace demo
