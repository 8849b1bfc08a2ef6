#pragma once

#include "KelDS/KelDS.hpp"

namespace quillet {

/// Distances between things, in device-independent pixels.
class Spacing {
public:
    virtual ~Spacing() = default;
    [[nodiscard]] virtual int small() const = 0;
    [[nodiscard]] virtual int semi() const = 0;
    [[nodiscard]] virtual int standard() const = 0;
};

/// The design system's.
class Spacer final : public Spacing {
public:
    [[nodiscard]] int small() const override { return kel::KelSpacing::small; }
    [[nodiscard]] int semi() const override { return kel::KelSpacing::semi; }
    [[nodiscard]] int standard() const override { return kel::KelSpacing::standard; }
};

} // namespace quillet
