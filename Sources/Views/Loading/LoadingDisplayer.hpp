#pragma once

#include "Views/Loading/LoadingView.hpp"

#include <memory>

namespace quillet {

/// How a screen that has no call of its own shows the loading overlay.
class LoadingDisplayable {
public:
    virtual ~LoadingDisplayable() = default;
    /// Covers the screen that draws `loadingView()`.
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
