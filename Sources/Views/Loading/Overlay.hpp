#pragma once

#include "Views/Tokens/Opacity.hpp"

#include "KelDS/KelDS.hpp"

#include <memory>

namespace quillet {

/// The layer between a screen and the progress indicator: highEmphasis with the opacity mediumHigh. In the
/// dark theme that colour is light, and the ring's contrast would be 1.1:1, so black is used there.
class Overlay {
public:
    explicit Overlay(std::unique_ptr<Opacity> opacity = std::make_unique<Opacities>())
        : opacity_(std::move(opacity)) {}

    [[nodiscard]] QColor color() const {
        const bool isLight = kel::KelAppearance::current().theme() == kel::KelTheme::light;
        return kel::KelColors::withAlpha(isLight ? kel::KelColors::highEmphasis() : QColor(Qt::black),
                                         opacity_->mediumHigh());
    }

private:
    std::unique_ptr<Opacity> opacity_;
};

} // namespace quillet
