#pragma once

#include "Views/Tokens/Opacity.hpp"

#include "KelDS/KelDS.hpp"

#include <memory>

namespace quillet {

/// The layer between a screen and the progress indicator: the theme's veil with the opacity mediumHigh. In
/// the light theme the veil has the colour highEmphasis; where that is light, the ring's contrast would
/// be 1.1:1.
class Overlay {
public:
    explicit Overlay(std::unique_ptr<Opacity> opacity = std::make_unique<Opacities>())
        : opacity_(std::move(opacity)) {}

    [[nodiscard]] QColor color() const {
        return kel::KelColors::withAlpha(kel::KelColors::veil(), opacity_->mediumHigh());
    }

private:
    std::unique_ptr<Opacity> opacity_;
};

} // namespace quillet
