#pragma once

#include "KelDS/KelDS.hpp"

namespace quillet {

/// Fonts by the design system's indexes of size and weight.
class FontsCreating {
public:
    virtual ~FontsCreating() = default;
    [[nodiscard]] virtual QFont font(int size, int weight) const = 0;
};

/// The design system's.
class FontsCreator final : public FontsCreating {
public:
    [[nodiscard]] QFont font(int size, int weight) const override {
        return kel::KelFonts::font(size, weight);
    }
};

} // namespace quillet
