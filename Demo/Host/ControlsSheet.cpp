#include "ControlsSheet.hpp"

#include "KelDS/KelDS.hpp"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickView>

namespace demo {

std::expected<void, QString> drawControls(const QString& file) {
    QQuickView view;
    kel::useDesignSystem(*view.engine());
    view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Demo/Controls.qml")));
    if (view.status() != QQuickView::Ready) {
        return std::unexpected(QStringLiteral("the sheet does not load"));
    }
    view.show();
    // Layouts are polished in the event loop, so it runs before the picture is taken.
    QCoreApplication::processEvents();
    if (!view.grabWindow().save(file)) {
        return std::unexpected(QStringLiteral("cannot write ") + file);
    }
    return {};
}

} // namespace demo
