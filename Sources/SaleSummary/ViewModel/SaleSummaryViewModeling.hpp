#pragma once

#include <memory>

namespace quillet {

class SaleSummaryViewModelDelegate;

/// The sale summary's view model as its screen sees it. Main thread only; every call returns at once.
class SaleSummaryViewModeling {
public:
    virtual ~SaleSummaryViewModeling() = default;
    /// The screen, held weakly.
    virtual void setDelegate(std::weak_ptr<SaleSummaryViewModelDelegate> delegate) = 0;
    /// Sends the screen view.
    virtual void trackAnalyticsScreen() = 0;
    /// Starts the first pass: the association, then the open orders, then one outcome on the screen.
    virtual void doRequests() = 0;
    /// Repeats the calls that have not succeeded.
    virtual void tryAgainDoRequests() = 0;
    /// Sends the event of the send-products tap.
    virtual void trackSendOrdersToCart() = 0;
};

} // namespace quillet
