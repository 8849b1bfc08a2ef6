#pragma once

#include "Platform/Screens/QuickViewController.hpp"
#include "Views/Dialogs/Dialog.hpp"
#include "Views/Loading/LoadingView.hpp"
#include "Views/Tokens/Coloring.hpp"
#include "Views/TryAgain/TryAgainView.hpp"

#include <memory>

namespace quillet {

/// What the module's screens have in common: the design system's ground, and over the content a try-again
/// view, a dialog and the loading overlay, one of each. Main thread only.
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
    /// Shows a dialog, in place of the one before. Its actions do nothing once the screen has left its stack:
    /// a dialog fades before it acts.
    template <typename Presenter>
    void presentDialog(const Presenter& presenter, DialogActions actions) {
        setDialog(std::make_unique<Dialog>(presenter, std::make_shared<ViewAnimatingWrapper>(),
                                           whileHere(std::move(actions))));
    }
    /// Puts a view in the slot, which shows nothing yet.
    void putTryAgainView(std::unique_ptr<TryAgainScreen> view);
    /// Shows what is in the slot, or nothing of it.
    void showTryAgainView(bool shows);
    [[nodiscard]] bool isTryAgainViewShown() const { return tryAgainViewShown_ && tryAgainView_; }

    /// A view that is on screen may be in the middle of telling about a tap when it is replaced: it goes once
    /// control is back in the event loop.
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
