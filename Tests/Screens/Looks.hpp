#pragma once

#include <QQuickItem>
#include <QStringList>

namespace demo::testing {

/// What a person sees inside an item, one line an element: texts and icons with colour and font, pictures,
/// boxes with fill, edge and corners. What lies on a box is indented below it. "-" opens a row and "+" goes
/// on in it. Where things are is told by their order alone, so that it holds with any font.
[[nodiscard]] QStringList looksOf(QQuickItem& item);

} // namespace demo::testing
