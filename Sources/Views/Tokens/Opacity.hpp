#pragma once

#include "KelDS/KelDS.hpp"

namespace quillet {

/// The one opacity token that the module's own views read, from 0 to 1.
class Opacity {
public:
    virtual ~Opacity() = default;
    [[nodiscard]] virtual double mediumHigh() const = 0;
};

/// The design system's.
class Opacities final : public Opacity {
public:
    [[nodiscard]] double mediumHigh() const override { return kel::KelOpacity::mediumHigh; }
};

} // namespace quillet
