#pragma once

#include "Views/Covers/Cover.hpp"

namespace quillet {

/// Lets QML ask whether an item is covered. A screen reader can still press what lies under a cover.
class Covers : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    [[nodiscard]] Q_INVOKABLE static bool over(QQuickItem* item) { return item && Cover::isOver(*item); }
};

} // namespace quillet
