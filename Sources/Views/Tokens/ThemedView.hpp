#pragma once

#include "KelDS/KelDS.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quillet {

/// A view with colours of its own: it says when they may have changed. Main thread only.
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
