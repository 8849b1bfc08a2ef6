#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kel {

/// The few words that the controls bring themselves, for those who hear a screen rather than see it. They
/// follow the language of kel::setLanguage, looked up on first use and kept.
class KelWords : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString close READ close CONSTANT FINAL)
    Q_PROPERTY(QString loading READ loading CONSTANT FINAL)

public:
    [[nodiscard]] static QString close();
    [[nodiscard]] static QString loading();
};

} // namespace kel
