#pragma once

#include "SaleSummary/Screen/SaleSummaryScreen.hpp"
#include "Views/Dialogs/Dialog.hpp"
#include "Views/Loading/Loading.hpp"
#include "Views/TryAgain/TryAgainView.hpp"

#include <memory>

namespace quillet {

class QuilletNavigationDelegate;
class SaleSummaryViewCreating;
class SaleSummaryViewDelegate;
class SaleSummaryViewModeling;

/// The sale summary screen as its view model and the use cases see it. Held weakly by all of them. Main
/// thread only.
class SaleSummaryViewModelDelegate : public Loading {
public:
    /// Shows a dialog over the screen in place of the one it shows, if any.
    virtual void showDialog(const DialogPresenter& presenter, DialogActions actions) = 0;
    virtual void showDialog(const DialogWithIconPresenter& presenter, DialogActions actions) = 0;

    /// Puts a view into the content slot, which owns it from then on; the one held before goes.
    virtual void setContentView(std::unique_ptr<SaleSummaryScreen> view) = 0;
    /// Shows what the content slot holds; an empty slot is ignored.
    virtual void addContentView() = 0;
    virtual void setTryAgainView(std::unique_ptr<TryAgainScreen> view) = 0;
    virtual void addTryAgainView() = 0;
    /// Takes the try-again view off the screen; its slot keeps it.
    virtual void removeTryAgainView() = 0;

    /// What the use cases build their views with.
    [[nodiscard]] virtual const SaleSummaryViewCreating& contentViewFactory() const = 0;
    [[nodiscard]] virtual const TryAgainCreating& tryAgainFactory() const = 0;
    /// What those views report to.
    [[nodiscard]] virtual std::weak_ptr<SaleSummaryViewDelegate> viewDelegate() = 0;
    /// The host's navigation; null once the host let go of it.
    [[nodiscard]] virtual std::shared_ptr<QuilletNavigationDelegate> navigationDelegate() const = 0;
    [[nodiscard]] virtual SaleSummaryViewModeling& viewModel() = 0;
};

} // namespace quillet
