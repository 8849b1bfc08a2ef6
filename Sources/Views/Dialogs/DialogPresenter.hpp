#pragma once

#include <QString>

namespace quillet {

/// The texts of a dialog.
struct DialogPresenter {
    QString title;
    QString message;
    QString actionText;
};

/// The texts of a dialog that shows an image, named as in the module's resources.
struct DialogWithIconPresenter {
    QString title;
    QString message;
    QString iconName;
    QString actionText;
};

} // namespace quillet
