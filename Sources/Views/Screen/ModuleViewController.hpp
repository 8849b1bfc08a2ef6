#pragma once

#include "Platform/Screens/QuickViewController.hpp"
#include "Views/Dialogs/Dialog.hpp"
#include "Views/Loading/LoadingView.hpp"
#include "Views/Tokens/Coloring.hpp"
#include "Views/TryAgain/TryAgainView.hpp"

#include <memory>

namespace quillet {

/// Base of the module's screens: the background colour and, over the content, one try-again view, one dialog
/// and the loading overlay. Main thread only.
class ModuleViewController : public quillet::platform::QuickViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by factories")
    Q_PROPERTY(quillet::LoadingView* loadingView READ loadingView CONSTANT FINAL)
    Q_PROPERTY(quillet::Dialog* dialog READ dialog NOTIFY dialogChanged FINAL)
    Q_PROPERTY(quillet::TryAgainView* tryAgainView READ shownTryAgainView NOTIFY tryAgainViewChanged FINAL)

public:
    ~ModuleViewController() override;

    /// Made on first use and then kept.
    [[nodiscard]] virtual LoadingView* loadingView();
    /// The latest dialog; null before the first.
    [[nodiscard]] Dialog* dialog() const { return dialog_.get(); }
    /// The try-again view that is on the screen; null where there is none.
    [[nodiscard]] TryAgainView* shownTryAgainView() const;

Q_SIGNALS:
    void dialogChanged();
    void tryAgainViewChanged();

protected:
    explicit ModuleViewController(std::unique_ptr<Coloring> colors = std::make_unique<Colors>());

    void showLoading();
    void hideLoading();
    /// Shows a dialog in place of the previous one. The action of the first touch runs after its fade, and
    /// not at all if the screen has left its stack by then; those of further touches do not run.
    template <typename Presenter>
    void presentDialog(const Presenter& presenter, DialogActions actions) {
        setDialog(std::make_unique<Dialog>(presenter, std::make_shared<ViewAnimatingWrapper>(),
                                           whileHere(std::move(actions))));
    }
    /// Stores a view without showing it.
    void putTryAgainView(std::unique_ptr<TryAgainScreen> view);
    /// Shows or hides the stored view.
    void showTryAgainView(bool shows);
    [[nodiscard]] bool isTryAgainViewShown() const { return tryAgainViewShown_ && tryAgainView_; }

    /// A view may be replaced while it handles a tap, so it is destroyed later, by the event loop.
    struct DeleteLater {
        void operator()(QObject* object) const { object->deleteLater(); }
    };

private:
    void setDialog(std::unique_ptr<Dialog> dialog);
    [[nodiscard]] DialogActions whileHere(DialogActions actions) const;

    std::unique_ptr<Coloring> colors_;
    std::unique_ptr<LoadingView> loadingView_;
    std::unique_ptr<Dialog, DeleteLater> dialog_;
    std::unique_ptr<TryAgainScreen, DeleteLater> tryAgainView_;
    bool tryAgainViewShown_ = false;
};

} // namespace quillet
