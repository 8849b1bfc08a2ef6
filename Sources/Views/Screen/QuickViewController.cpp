#include "Views/Screen/QuickViewController.hpp"

#include "Views/Dialogs/Dialog.hpp"
#include "Views/Screen/NavigationController.hpp"

#include <utility>

namespace quillet {

QuickViewController::QuickViewController() {
    connect(this, &ThemedView::themeChanged, this, &QuickViewController::backgroundColorChanged);
}

QuickViewController::~QuickViewController() = default;

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

void QuickViewController::setBackground(std::function<QColor()> color) {
    background_ = std::move(color);
    Q_EMIT backgroundColorChanged();
}

void QuickViewController::setContinuesBar(bool continues) {
    if (continues != continuesBar_) {
        continuesBar_ = continues;
        Q_EMIT continuesBarChanged();
    }
}

NavigationController* QuickViewController::navigationController() const {
    return stay_ ? navigation_.data() : nullptr;
}

void QuickViewController::setNavigationController(NavigationController* navigation) {
    navigation_ = navigation;
}

void QuickViewController::enter() {
    if (stay_) {
        stay_->screen = shared_from_this();
    }
}

DialogActions QuickViewController::whileHere(DialogActions actions) const {
    for (auto* action : {&actions.didTapButton, &actions.didTapBackgroundView, &actions.didTapCloseIcon}) {
        *action = [stay = std::weak_ptr(stay_), act = std::move(*action)] {
            if (const auto here = stay.lock(); here && act) {
                act();
            }
        };
    }
    return actions;
}

} // namespace quillet
