#pragma once

#include "Views/Loading/Loading.hpp"

#include <QObject>

namespace quillet {

/// The full-screen overlay that a screen shows while a call runs. Off screen it draws nothing and costs no
/// frame.
class LoadingView final : public QObject, public Loading {
    Q_OBJECT
    Q_PROPERTY(bool onScreen READ isOnScreen NOTIFY onScreenChanged FINAL)

public:
    [[nodiscard]] bool isOnScreen() const { return onScreen_; }
    void startLoading() override { setOnScreen(true); }
    void stopLoading() override { setOnScreen(false); }

Q_SIGNALS:
    void onScreenChanged();

private:
    void setOnScreen(bool onScreen) {
        if (onScreen != onScreen_) {
            onScreen_ = onScreen;
            Q_EMIT onScreenChanged();
        }
    }

    bool onScreen_ = false;
};

} // namespace quillet
