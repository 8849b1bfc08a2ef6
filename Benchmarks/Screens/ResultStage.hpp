#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include "Checkout/Inputs/ProductList.hpp"

#include <chrono>
#include <memory>
#include <vector>

namespace quillet {
class ProductsCheckoutStatusViewController;
class ShippingStatusProductsView;
} // namespace quillet

namespace quillet::benchmarks {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// A window of a phone's size with a StackView that shows results without an animation. Main thread only.
class ResultStage {
public:
    /// The time of each step from a response's products to the first frame with rows.
    struct Opening {
        Milliseconds input{};
        Milliseconds view{};
        Milliseconds push{};
        Milliseconds frame{};

        [[nodiscard]] Milliseconds all() const { return input + view + push + frame; }
    };

    ResultStage();
    ~ResultStage();
    ResultStage(const ResultStage&) = delete;
    ResultStage& operator=(const ResultStage&) = delete;

    /// Shows the result of a checkout with these products.
    Opening open(const SharedProducts& products);
    /// Removes the screen and waits until all of it is deleted.
    void close();

    /// Taps the uppermost head and waits until its section stops moving, sixty frames a second. How long
    /// each frame took since the tap; the first includes the tap's own work.
    std::vector<Milliseconds> toggle();
    /// Waits until the window has drawn one more frame.
    void drawFrame();

    /// The list on the screen.
    [[nodiscard]] QQuickItem& list() const;
    /// The existing rows, heads included.
    [[nodiscard]] std::vector<QQuickItem*> rows() const;

private:
    std::unique_ptr<QQmlEngine> engine_;
    std::unique_ptr<QQuickWindow> window_;
    QQuickItem* stack_ = nullptr;
    std::weak_ptr<ProductsCheckoutStatusViewController> screen_;
};

} // namespace quillet::benchmarks
