#pragma once

#include <QList>
#include <QQuickItem>
#include <QRectF>

namespace demo {

/// Children from bottom to top, as they are painted.
[[nodiscard]] QList<QQuickItem*> paintOrder(const QQuickItem& item);

/// QML's own types have no public C++ class, so they are recognised by a property that only they have.
[[nodiscard]] bool has(const QQuickItem& item, const char* property);

/// Where the item is in its window.
[[nodiscard]] QRectF sceneRect(const QQuickItem& item);

} // namespace demo
