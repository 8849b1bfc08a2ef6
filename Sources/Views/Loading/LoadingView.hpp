#pragma once

#include "Views/Loading/Loading.hpp"
#include "Views/ProgressIndicatorCircular/ProgressIndicatorCircular.hpp"

#include <QObject>

#include <memory>

namespace quillet {

/// The full-screen overlay that a screen shows while a call runs, with the progress indicator in its middle.
/// Off screen it draws nothing and costs no frame.
class LoadingView final : public QObject, public Loading {
    Q_OBJECT
    Q_PROPERTY(bool onScreen READ isOnScreen NOTIFY onScreenChanged FINAL)
    Q_PROPERTY(QObject* progressIndicator READ progressIndicator CONSTANT FINAL)

public:
    [[nodiscard]] bool isOnScreen() const { return onScreen_; }
    void startLoading() override;
    void stopLoading() override;

    /// Made on first use.
    [[nodiscard]] ProgressIndicatorCircular* progressIndicator();

Q_SIGNALS:
    void onScreenChanged();

private:
    void setOnScreen(bool onScreen);

    bool onScreen_ = false;
    std::unique_ptr<ProgressIndicatorCircular> progressIndicator_;
};

} // namespace quillet
