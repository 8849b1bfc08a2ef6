#pragma once

#include "Views/Covers/Cover.hpp"

namespace quillet {

/// What QML asks about covers. A screen reader reaches what lies under one, where no finger does.
class Covers : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    [[nodiscard]] Q_INVOKABLE static bool over(QQuickItem* item) { return item && Cover::isOver(*item); }
};

} // namespace quillet
