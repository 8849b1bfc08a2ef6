#pragma once

#include "SaleSummary/Presenters/SaleSummaryPresenter.hpp"
#include "SaleSummary/UseCases/SaleSummaryUseCase.hpp"

namespace quillet {

/// Shows the customer's order and, over it, that it is registered.
class SaleSummarySuccessUseCase final : public SaleSummaryUseCase {
public:
    SaleSummarySuccessUseCase(std::weak_ptr<SaleSummaryViewModelDelegate> delegate,
                              std::shared_ptr<const OrderResult> associateResult,
                              std::shared_ptr<const OpenOrdersResult> getOpenOrdersResult,
                              std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager);

    [[nodiscard]] bool canShowContent() const override;
    void showContent() override;

    /// The texts of the summary: the points in progress are those of all open orders together, the product
    /// count is the number of regular lines. A sum of points beyond 64 bits goes to the fatal-error hook; if
    /// a replaced hook returns, the sum stays at the largest number.
    [[nodiscard]] SaleSummaryPresenter createPresenter(const Order& highlightedOrder) const;

private:
    [[nodiscard]] std::optional<Cycle> cycle() const;
    [[nodiscard]] std::uint64_t pointsInProgress() const;
    void showOrderRegistered();

    std::weak_ptr<SaleSummaryViewModelDelegate> delegate_;
    std::shared_ptr<const OrderResult> associateResult_;
    std::shared_ptr<const OpenOrdersResult> getOpenOrdersResult_;
    std::shared_ptr<kel::KelAnalyticsManagerType> analyticsManager_;
};

} // namespace quillet
