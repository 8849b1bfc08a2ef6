#pragma once

#include "KelDS/KelColors.hpp"

namespace quillet {

/// The colour tokens that the module's C++ reads.
class Coloring {
public:
    virtual ~Coloring() = default;
    [[nodiscard]] virtual QColor background() const = 0;
};

/// The design system's.
class Colors final : public Coloring {
public:
    [[nodiscard]] QColor background() const override { return kel::KelColors::background(); }
};

} // namespace quillet
