#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kel {

/// Which kind of device a person used last. Whoever uses keys has to see where the focus is, however it came
/// there; whoever uses a finger is not helped by a ring around the control that a dialog gave the focus to.
class KelInput : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Whether the last input was a key rather than a pointer. False before the first input.
    Q_PROPERTY(bool byKeys READ isByKeys NOTIFY changed FINAL)

public:
    explicit KelInput(QObject* parent = nullptr);

    [[nodiscard]] bool isByKeys() const { return byKeys_; }
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void changed();

private:
    bool byKeys_ = false;
};

} // namespace kel
