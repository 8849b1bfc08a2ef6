#pragma once

#include "SaleSummary/Screen/SaleSummaryRoutering.hpp"
#include "SaleSummary/Screen/SaleSummaryView.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModelDelegate.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModeling.hpp"
#include "Views/Dialogs/DialogFactory.hpp"
#include "Views/Screen/ModuleViewController.hpp"
#include "Views/Screen/ViewController.hpp"

namespace quillet {

/// The module's first screen: it starts the calls when it has loaded and shows the views of the chosen use
/// case.
class SaleSummaryViewController final : public quillet::ModuleViewController,
                                        public SaleSummaryViewModelDelegate,
                                        public SaleSummaryViewDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by factories")
    Q_PROPERTY(quillet::SaleSummaryView* contentView READ shownContentView NOTIFY contentViewChanged FINAL)

public:
    SaleSummaryViewController(std::shared_ptr<SaleSummaryViewModeling> viewModel,
                              std::unique_ptr<Coloring> colors, std::unique_ptr<SaleSummaryRoutering> router,
                              std::unique_ptr<ViewControllerWrapperCreating> wrapperFactory,
                              std::unique_ptr<SaleSummaryViewCreating> contentViewFactory,
                              std::weak_ptr<QuilletNavigationDelegate> navigationDelegate,
                              std::unique_ptr<DialogCreating> dialogFactory,
                              std::unique_ptr<TryAgainCreating> tryAgainFactory);
    ~SaleSummaryViewController() override;

    [[nodiscard]] QUrl viewUrl() const override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewWillDisappear() override;

    void startLoading() override;
    void stopLoading() override;
    void showDialog(const DialogPresenter& presenter, DialogActions actions) override;
    void showDialog(const DialogWithIconPresenter& presenter, DialogActions actions) override;
    void setContentView(std::unique_ptr<SaleSummaryScreen> view) override;
    void addContentView() override;
    void setTryAgainView(std::unique_ptr<TryAgainScreen> view) override;
    void addTryAgainView() override;
    void removeTryAgainView() override;
    [[nodiscard]] const SaleSummaryViewCreating& contentViewFactory() const override {
        return *contentViewFactory_;
    }
    [[nodiscard]] const TryAgainCreating& tryAgainFactory() const override { return *tryAgainFactory_; }
    [[nodiscard]] std::weak_ptr<SaleSummaryViewDelegate> viewDelegate() override;
    [[nodiscard]] std::shared_ptr<QuilletNavigationDelegate> navigationDelegate() const override;
    [[nodiscard]] SaleSummaryViewModeling& viewModel() override { return *viewModel_; }

    void didTapButton() override;

    /// The summary that is on the screen; null where there is none.
    [[nodiscard]] SaleSummaryView* shownContentView() const;
    /// The latest dialog; null before the first.
    [[nodiscard]] Dialog* dialogMessage() const { return dialog(); }

Q_SIGNALS:
    void contentViewChanged();

private:
    std::shared_ptr<SaleSummaryViewModeling> viewModel_;
    std::unique_ptr<SaleSummaryRoutering> router_;
    std::unique_ptr<ViewControllerWrapperCreating> wrapperFactory_;
    std::unique_ptr<SaleSummaryViewCreating> contentViewFactory_;
    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate_;
    // Passed in by the factory but not used: the screen builds its dialogs itself and binds their actions to
    // its time on the stack.
    std::unique_ptr<DialogCreating> dialogFactory_;
    std::unique_ptr<TryAgainCreating> tryAgainFactory_;
    std::unique_ptr<SaleSummaryScreen, DeleteLater> contentView_;
    bool contentViewShown_ = false;
};

} // namespace quillet
