#pragma once

#include "SaleSummary/Presenters/SaleSummaryPresenter.hpp"
#include "Views/Tokens/ThemedView.hpp"

#include <memory>

namespace quillet {

/// Receives taps on the summary. Main thread only.
class SaleSummaryViewDelegate {
public:
    virtual ~SaleSummaryViewDelegate() = default;
    /// The send-products button was tapped.
    virtual void didTapButton() = 0;
};

/// The summary content. The screen that shows it owns it and is its delegate, held weakly.
class SaleSummaryScreen : public quillet::ThemedView {
    Q_OBJECT

public:
    [[nodiscard]] virtual const SaleSummaryPresenter& presenter() const = 0;
    virtual void setDelegate(std::weak_ptr<SaleSummaryViewDelegate> delegate) = 0;
};

} // namespace quillet
