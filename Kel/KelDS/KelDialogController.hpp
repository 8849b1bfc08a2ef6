#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>

#include <memory>

class QQmlEngine;

namespace kel {

/// Presents an alert: a message of two texts over a screen, with a close icon as the way out. For screens
/// that have nothing to do when it goes. Main thread only.
class KelDialogController final : public QObject {
    Q_OBJECT

public:
    KelDialogController(QString title, QString body);
    ~KelDialogController() override;

    /// Shows the alert above everything in `over`. From here on the alert owns the controller, and both go
    /// once it is dismissed, or with `over`. `engine` is the screen's. `animated` is about coming and going.
    static QPointer<KelDialogController> present(std::unique_ptr<KelDialogController> controller,
                                                 QQmlEngine& engine, QQuickItem& over, bool animated);

private:
    QString title_;
    QString body_;
};

} // namespace kel
