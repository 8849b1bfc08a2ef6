#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>

#include <memory>

class QQmlEngine;

namespace kel {

/// Presents a message of two texts over a screen, with a close icon as the way out. For screens that have
/// nothing to do when it goes; those that have draw a KelDialog of their own. Main thread only.
class KelDialogController final : public QObject {
    Q_OBJECT

public:
    KelDialogController(QString title, QString body);
    ~KelDialogController() override;

    /// Shows the dialog above everything in `over`. From here on the dialog owns the controller, and both go
    /// once it is dismissed, or with `over`. `engine` is the screen's. `animated` is about coming and going.
    static QPointer<KelDialogController> present(std::unique_ptr<KelDialogController> controller,
                                                 QQmlEngine& engine, QQuickItem& over, bool animated);

public Q_SLOTS:
    /// Fades out, or goes at once if it came so.
    void dismiss();

private:
    void remove();

    QString title_;
    QString body_;
    bool animated_ = true;
    QPointer<QQuickItem> dialog_;
};

} // namespace kel
