#pragma once

#include "Views/Loading/Loading.hpp"
#include "Views/Loading/Overlay.hpp"
#include "Views/ProgressIndicatorCircular/ProgressIndicatorCircular.hpp"
#include "Views/Tokens/Coloring.hpp"
#include "Views/Tokens/Sizing.hpp"
#include "Views/Tokens/ThemedView.hpp"

#include <QTimer>

#include <memory>
#include <optional>

namespace quillet {

/// The loading overlay of a screen, with a progress indicator in its middle. While it is hidden it draws
/// nothing and requests no frames.
class LoadingView : public quillet::ThemedView, public Loading {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by a screen")
    Q_PROPERTY(bool onScreen READ isOnScreen NOTIFY onScreenChanged FINAL)
    Q_PROPERTY(quillet::ProgressIndicatorCircular* progressIndicator READ progressIndicator CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor overlayColor READ overlayColor NOTIFY themeChanged FINAL)
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged FINAL)
    Q_PROPERTY(QColor noticeColor READ noticeColor CONSTANT FINAL)
    Q_PROPERTY(int indicatorSize READ indicatorSize CONSTANT FINAL)

public:
    explicit LoadingView(std::unique_ptr<Coloring> colors = std::make_unique<Colors>(),
                         std::unique_ptr<Sizing> sizer = std::make_unique<Sizer>());

    [[nodiscard]] bool isOnScreen() const { return onScreen_; }
    void startLoading() override;
    void stopLoading() override;

    /// Made on first use.
    [[nodiscard]] ProgressIndicatorCircular* progressIndicator();
    [[nodiscard]] QColor backgroundColor() const { return colors_->background(); }
    [[nodiscard]] QColor overlayColor() { return overylay().color(); }
    [[nodiscard]] int indicatorSize() const { return sizer_->mediumX(); }
    /// What a screen reader calls the overlay.
    [[nodiscard]] QString name() const;
    /// One line that says that it takes longer than usual: empty for the first five seconds on screen, and
    /// kept until the overlay is shown again. It changes nothing about the calls.
    [[nodiscard]] QString notice() const { return notice_; }
    /// The overlay is dark in every theme.
    [[nodiscard]] QColor noticeColor() const { return Qt::white; }

Q_SIGNALS:
    void onScreenChanged();
    void noticeChanged();

private:
    [[nodiscard]] Overlay& overylay();
    void setOnScreen(bool onScreen);
    void setNotice(const QString& notice);

    std::unique_ptr<ProgressIndicatorCircular> progressIndicator_;
    // Spelled as in the interface.
    std::optional<Overlay> overylay_;
    std::unique_ptr<Coloring> colors_;
    std::unique_ptr<Sizing> sizer_;
    QString notice_;
    QTimer patience_{this};
    bool onScreen_ = false;
};

} // namespace quillet
