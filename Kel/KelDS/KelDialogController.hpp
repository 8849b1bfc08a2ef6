#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>

#include <memory>

namespace kel {

/// Presents a message of two texts over a screen, with a close icon as the way out. For screens that have
/// nothing to do when it goes; those that have draw a KelDialog of their own. Main thread only.
class KelDialogController final : public QObject {
    Q_OBJECT

public:
    KelDialogController(QString title, QString body);
    ~KelDialogController() override;

    /// Shows the dialog above everything in `over`, which has to be in a window. From here on the dialog owns
    /// the controller, and both go once it is dismissed, or with `over`. Returns null, having shown nothing,
    /// where there is no QML engine to make it with. `animated` is about its coming and its going.
    static QPointer<KelDialogController> present(std::unique_ptr<KelDialogController> controller,
                                                 QQuickItem& over, bool animated);

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
