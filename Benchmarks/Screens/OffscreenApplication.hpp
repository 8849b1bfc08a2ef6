#pragma once

#include "Quillet/Checkout.hpp"

#include <QGuiApplication>

#include <array>
#include <memory>
#include <vector>

namespace quillet::benchmarks {

/// The process's Qt application, in Spanish, which draws without a screen and in software. A frame is drawn
/// as soon as it is asked for, without a pause between two.
class OffscreenApplication {
public:
    OffscreenApplication();

private:
    int argumentCount_ = 1;
    std::array<char, 6> program_{"bench"};
    std::array<char*, 2> arguments_{program_.data(), nullptr};
    QGuiApplication application_;
};

/// Products of a response to a checkout; all were sent, or every other one was not.
[[nodiscard]] std::shared_ptr<const std::vector<Product>> madeProducts(std::size_t count, bool someNotSent);

} // namespace quillet::benchmarks
