#include "KelDS/KelDialogController.hpp"

#include "KelDS/KelDS.hpp"
#include "KelDS/KelTokens.hpp"

#include <QLoggingCategory>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QVariantAnimation>

#include <utility>

namespace kel {

namespace {
Q_LOGGING_CATEGORY(lcDialog, "kel.dialog")
}

KelDialogController::KelDialogController(QString title, QString body)
    : title_(std::move(title)), body_(std::move(body)) {}

KelDialogController::~KelDialogController() = default;

QPointer<KelDialogController> KelDialogController::present(std::unique_ptr<KelDialogController> controller,
                                                           QQuickItem& over, bool animated) {
    QQmlEngine* engine = qmlEngine(&over);
    if (!engine) {
        qCWarning(lcDialog) << "no engine to make a dialog with";
        return nullptr;
    }
    useDesignSystem(*engine);
    QQmlComponent component(engine, QUrl(QStringLiteral("qrc:/qt/qml/KelDS/KelDialog.qml")));
    auto* dialog = qobject_cast<QQuickItem*>(
        component.createWithInitialProperties({{"title", controller->title_},
                                               {"message", controller->body_},
                                               {"appeared", animated ? 0 : 1},
                                               {"parent", QVariant::fromValue(&over)},
                                               {"width", over.width()},
                                               {"height", over.height()}}));
    if (!dialog) {
        qCWarning(lcDialog) << component.errors();
        return nullptr;
    }
    QQmlEngine::setObjectOwnership(dialog, QQmlEngine::CppOwnership);
    dialog->setParent(&over);
    // Above the overlays of whatever screen it covers.
    dialog->setZ(3);
    connect(&over, &QQuickItem::widthChanged, dialog, [&over, dialog] { dialog->setWidth(over.width()); });
    connect(&over, &QQuickItem::heightChanged, dialog, [&over, dialog] { dialog->setHeight(over.height()); });

    KelDialogController* presented = controller.release();
    presented->animated_ = animated;
    presented->dialog_ = dialog;
    presented->setParent(dialog);
    connect(dialog, SIGNAL(backgroundTouched()), presented, SLOT(dismiss()));
    connect(dialog, SIGNAL(closeIconTouched()), presented, SLOT(dismiss()));
    return presented;
}

void KelDialogController::dismiss() {
    if (!dialog_ || !animated_) {
        return remove();
    }
    auto* fade = new QVariantAnimation(dialog_);
    fade->setStartValue(dialog_->property("alpha"));
    fade->setEndValue(0.0);
    fade->setDuration(motion::dialogOut);
    connect(fade, &QVariantAnimation::valueChanged, dialog_,
            [dialog = dialog_.data()](const QVariant& alpha) { dialog->setProperty("alpha", alpha); });
    connect(fade, &QAbstractAnimation::finished, this, &KelDialogController::remove);
    fade->start();
}

void KelDialogController::remove() {
    if (dialog_) {
        dialog_->setVisible(false);
        dialog_->deleteLater();
    }
}

} // namespace kel
