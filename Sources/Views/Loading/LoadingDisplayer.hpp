#pragma once

#include "Views/Loading/LoadingView.hpp"

#include <memory>

namespace quillet {

/// Shows the loading overlay on a screen that makes no call itself.
class LoadingDisplayable {
public:
    virtual ~LoadingDisplayable() = default;
    /// Starts the overlay that `loadingView()` draws.
    virtual void showLoading() = 0;
    [[nodiscard]] virtual LoadingView& loadingView() = 0;
};

class LoadingDisplayer final : public LoadingDisplayable {
public:
    explicit LoadingDisplayer(std::unique_ptr<LoadingView> loadingView)
        : loadingView_(std::move(loadingView)) {}
    void showLoading() override { loadingView_->startLoading(); }
    [[nodiscard]] LoadingView& loadingView() override { return *loadingView_; }

private:
    std::unique_ptr<LoadingView> loadingView_;
};

} // namespace quillet
