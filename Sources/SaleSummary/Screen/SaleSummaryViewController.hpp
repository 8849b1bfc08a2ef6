#pragma once

#include "SaleSummary/Screen/SaleSummaryRoutering.hpp"
#include "SaleSummary/Screen/SaleSummaryView.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModelDelegate.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModeling.hpp"
#include "Views/Dialogs/DialogFactory.hpp"
#include "Views/Loading/LoadingView.hpp"
#include "Views/Screen/ViewController.hpp"
#include "Views/Tokens/Coloring.hpp"

namespace quillet {

/// The module's first screen: it runs the calls when it has loaded and hosts whatever the chosen use case
/// puts on it.
class SaleSummaryViewController final : public QuickViewController,
                                        public SaleSummaryViewModelDelegate,
                                        public SaleSummaryViewDelegate {
    Q_OBJECT
    Q_PROPERTY(QObject* loadingView READ loadingView CONSTANT FINAL)
    Q_PROPERTY(QObject* contentView READ shownContentView NOTIFY contentViewChanged FINAL)
    Q_PROPERTY(QObject* tryAgainView READ shownTryAgainView NOTIFY tryAgainViewChanged FINAL)
    Q_PROPERTY(QObject* dialogMessage READ dialogMessage NOTIFY dialogMessageChanged FINAL)

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

    [[nodiscard]] QObject* loadingView();
    [[nodiscard]] QObject* shownContentView() const { return shownContentView_; }
    [[nodiscard]] QObject* shownTryAgainView() const { return shownTryAgainView_; }
    [[nodiscard]] QObject* dialogMessage() const { return dialogMessage_.get(); }

Q_SIGNALS:
    void contentViewChanged();
    void tryAgainViewChanged();
    void dialogMessageChanged();

private:
    template <typename Presenter>
    void show(const Presenter& presenter, DialogActions actions);

    std::shared_ptr<SaleSummaryViewModeling> viewModel_;
    std::unique_ptr<Coloring> colors_;
    std::unique_ptr<SaleSummaryRoutering> router_;
    std::unique_ptr<ViewControllerWrapperCreating> wrapperFactory_;
    std::unique_ptr<SaleSummaryViewCreating> contentViewFactory_;
    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate_;
    std::unique_ptr<DialogCreating> dialogFactory_;
    std::unique_ptr<TryAgainCreating> tryAgainFactory_;
    std::unique_ptr<LoadingView> loadingView_;
    std::unique_ptr<SaleSummaryScreen, DeleteLater> contentView_;
    std::unique_ptr<TryAgainScreen, DeleteLater> tryAgainView_;
    std::unique_ptr<Dialog, DeleteLater> dialogMessage_;
    QPointer<QObject> shownContentView_;
    QPointer<QObject> shownTryAgainView_;
};

} // namespace quillet
