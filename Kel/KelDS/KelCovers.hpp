#pragma once

#include "KelDS/KelCover.hpp"

namespace kel {

/// What QML asks about covers. A screen reader reaches what lies under one, where no finger does.
class KelCovers : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    [[nodiscard]] Q_INVOKABLE static bool over(QQuickItem* item) { return item && KelCover::isOver(*item); }
};

} // namespace kel
