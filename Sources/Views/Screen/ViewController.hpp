#pragma once

#include "Platform/Screens/QuickViewController.hpp"

#include <memory>

namespace quillet {

/// A weak reference to the screen that a router starts from.
class ViewController {
public:
    virtual ~ViewController() = default;
    /// The screen; null once it is gone.
    [[nodiscard]] virtual std::shared_ptr<platform::QuickViewController> originViewController() const = 0;
};

/// Holds the screen weakly, so that a router does not keep a closed screen alive.
class ViewControllerWrapper final : public ViewController {
public:
    explicit ViewControllerWrapper(std::weak_ptr<platform::QuickViewController> screen)
        : screen_(std::move(screen)) {}
    [[nodiscard]] std::shared_ptr<platform::QuickViewController> originViewController() const override {
        return screen_.lock();
    }

private:
    std::weak_ptr<platform::QuickViewController> screen_;
};

/// Makes the wrapper that a screen hands to its router.
class ViewControllerWrapperCreating {
public:
    virtual ~ViewControllerWrapperCreating() = default;
    [[nodiscard]] virtual std::unique_ptr<ViewController>
    create(std::weak_ptr<platform::QuickViewController> screen) const = 0;
};

class ViewControllerWrapperFactory final : public ViewControllerWrapperCreating {
public:
    [[nodiscard]] std::unique_ptr<ViewController>
    create(std::weak_ptr<platform::QuickViewController> screen) const override {
        return std::make_unique<ViewControllerWrapper>(std::move(screen));
    }
};

} // namespace quillet
