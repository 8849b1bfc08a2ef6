#pragma once

#include "Checkout/Screen/CheckoutRoutering.hpp"
#include "Checkout/Screen/CheckoutViewModelDelegate.hpp"
#include "Checkout/Screen/CheckoutViewModeling.hpp"
#include "Views/Dialogs/DialogFactory.hpp"
#include "Views/Screen/ModuleViewController.hpp"
#include "Views/Screen/ViewController.hpp"

namespace quillet {

/// The screen between the send tap and the result. It has no content: it shows the loading overlay while the
/// checkout runs, and then pushes a result screen or shows the generic error.
class CheckoutViewController final : public quillet::ModuleViewController, public CheckoutViewModelDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by factories")

public:
    CheckoutViewController(std::unique_ptr<Coloring> colors, std::shared_ptr<CheckoutViewModeling> viewModel,
                           std::unique_ptr<CheckoutRoutering> router,
                           std::unique_ptr<ViewControllerWrapperCreating> wrapperFactory,
                           std::unique_ptr<TryAgainCreating> tryAgainFactory,
                           std::unique_ptr<DialogCreating> dialogFactory,
                           std::weak_ptr<QuilletNavigationDelegate> navigationDelegate);
    ~CheckoutViewController() override;

    [[nodiscard]] QUrl viewUrl() const override;
    void viewDidLoad() override;
    void viewWillAppear() override;

    void startLoading() override;
    void stopLoading() override;
    void showDialog(const DialogPresenter& presenter, DialogActions actions) override;
    void removeTryAgainView() override;
    [[nodiscard]] CheckoutRoutering& router() override { return *router_; }
    [[nodiscard]] std::unique_ptr<ViewController> wrapped() override;
    [[nodiscard]] std::shared_ptr<QuilletNavigationDelegate> navigationDelegate() const override;

private:
    std::shared_ptr<CheckoutViewModeling> viewModel_;
    std::unique_ptr<CheckoutRoutering> router_;
    std::unique_ptr<ViewControllerWrapperCreating> wrapperFactory_;
    // Passed in by the factory but not used: this flow has no try-again view, and the screen builds its
    // dialog itself.
    std::unique_ptr<TryAgainCreating> tryAgainFactory_;
    std::unique_ptr<DialogCreating> dialogFactory_;
    std::weak_ptr<QuilletNavigationDelegate> navigationDelegate_;
};

} // namespace quillet
