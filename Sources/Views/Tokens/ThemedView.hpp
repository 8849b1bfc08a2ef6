#pragma once

#include "KelDS/KelDS.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quillet {

/// Base of views with colours and fonts: it signals when the theme or the size of texts has changed. Main
/// thread only.
class ThemedView : public QObject {
    Q_OBJECT
    QML_ANONYMOUS

protected:
    ThemedView() {
        connect(&kel::KelAppearance::current(), &kel::KelAppearance::changed, this,
                &ThemedView::themeChanged);
    }

Q_SIGNALS:
    void themeChanged();
};

} // namespace quillet
