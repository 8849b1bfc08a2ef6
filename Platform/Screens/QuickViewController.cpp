#include "Platform/Screens/QuickViewController.hpp"

namespace quillet::platform {

void QuickViewController::setTitle(const QString& title) {
    if (title != title_) {
        title_ = title;
        Q_EMIT titleChanged();
    }
}

void QuickViewController::setHidesBackButton(bool hides) {
    if (hides != hidesBackButton_) {
        hidesBackButton_ = hides;
        Q_EMIT hidesBackButtonChanged();
    }
}

void QuickViewController::setBackgroundColor(const QColor& color) {
    if (color != backgroundColor_) {
        backgroundColor_ = color;
        Q_EMIT backgroundColorChanged();
    }
}

void QuickViewController::setContinuesBar(bool continues) {
    if (continues != continuesBar_) {
        continuesBar_ = continues;
        Q_EMIT continuesBarChanged();
    }
}

void QuickViewController::enter() {
    if (stay_) {
        stay_->screen = shared_from_this();
    }
}

} // namespace quillet::platform
