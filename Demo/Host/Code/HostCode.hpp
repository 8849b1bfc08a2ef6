#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace demo {

/// The sample host's own source that embeds the module, taken from it whenever it is built.
class HostCode : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString text READ text CONSTANT FINAL)
    /// The source file, as it is found in the project.
    Q_PROPERTY(QString file READ file CONSTANT FINAL)

public:
    [[nodiscard]] static QString text();
    [[nodiscard]] static QString file();
};

} // namespace demo
