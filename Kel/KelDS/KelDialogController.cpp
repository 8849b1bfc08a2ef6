#include "KelDS/KelDialogController.hpp"

#include "KelCommon/KelLocalized.hpp"
#include "KelDS/KelDesignSystem.hpp"

#include <QLoggingCategory>
#include <QQmlComponent>
#include <QQmlEngine>

#include <utility>

// The macro has to stand outside any namespace; see KelDSIcons.
static void initTextResources() {
    Q_INIT_RESOURCE(kel_words);
}

namespace kel {

namespace {
Q_LOGGING_CATEGORY(lcDialog, "kel.dialog")

namespace keys {
// NOLINTNEXTLINE(bugprone-macro-parentheses): a name that is declared takes none.
#define KEL_TEXT(name, key) constexpr auto name = (key);
#include "KelDS/KelTextKeys.def"
} // namespace keys

QString closeText() {
    initTextResources();
    return localized(keys::close, {QStringLiteral(":/kel/texts"), QStringLiteral("kelds")});
}

} // namespace

KelDialogController::KelDialogController(QString title, QString body)
    : title_(std::move(title)), body_(std::move(body)) {}

KelDialogController::~KelDialogController() = default;

QPointer<KelDialogController> KelDialogController::present(std::unique_ptr<KelDialogController> controller,
                                                           QQmlEngine& engine, QQuickItem& over,
                                                           bool animated) {
    useDesignSystem(engine);
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/qt/qml/KelDS/KelDialog.qml")));
    QObject* dialog = component.isError()
                          ? nullptr
                          : component.createWithInitialProperties({{"title", controller->title_},
                                                                   {"message", controller->body_},
                                                                   {"closeText", closeText()},
                                                                   {"animated", animated},
                                                                   {"parent", QVariant::fromValue(&over)}});
    if (!dialog) {
        qCWarning(lcDialog) << component.errors();
        return nullptr;
    }
    // The dialog destroys itself once it has closed, which QML lets only those do that are its own.
    QQmlEngine::setObjectOwnership(dialog, QQmlEngine::JavaScriptOwnership);
    dialog->setParent(&over);
    KelDialogController* presented = controller.release();
    presented->setParent(dialog);
    return presented;
}

} // namespace kel
