#pragma once

#include "KelDS/KelTokens.hpp"

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
    [[nodiscard]] int small() const override { return kel::sizes::small; }
    [[nodiscard]] int semi() const override { return kel::sizes::semi; }
    [[nodiscard]] int semiX() const override { return kel::sizes::semiX; }
    [[nodiscard]] int medium() const override { return kel::sizes::medium; }
    [[nodiscard]] int mediumX() const override { return kel::sizes::mediumX; }
};

} // namespace quillet
