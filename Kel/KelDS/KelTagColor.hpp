#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What a tag says by its colour.
namespace kel::KelTagColor {
Q_NAMESPACE
QML_ELEMENT

enum Color { Primary, Success, Warning, Alert, Link };
Q_ENUM_NS(Color)

} // namespace kel::KelTagColor
