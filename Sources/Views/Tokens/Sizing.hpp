#pragma once

#include "KelDS/KelDS.hpp"

namespace quillet {

/// Sizes of things, in device-independent pixels.
class Sizing {
public:
    virtual ~Sizing() = default;
    [[nodiscard]] virtual int small() const = 0;
    [[nodiscard]] virtual int semi() const = 0;
    [[nodiscard]] virtual int semiX() const = 0;
    [[nodiscard]] virtual int medium() const = 0;
    [[nodiscard]] virtual int mediumX() const = 0;
};

/// The design system's.
class Sizer final : public Sizing {
public:
    [[nodiscard]] int small() const override { return kel::KelSizes::small; }
    [[nodiscard]] int semi() const override { return kel::KelSizes::semi; }
    [[nodiscard]] int semiX() const override { return kel::KelSizes::semiX; }
    [[nodiscard]] int medium() const override { return kel::KelSizes::medium; }
    [[nodiscard]] int mediumX() const override { return kel::KelSizes::mediumX; }
};

} // namespace quillet
