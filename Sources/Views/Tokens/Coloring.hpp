#pragma once

#include "KelDS/KelDS.hpp"

namespace quillet {

/// The colour tokens that the module's views use. They follow the current theme; see ThemedView.
class Coloring {
public:
    virtual ~Coloring() = default;
    [[nodiscard]] virtual QColor background() const = 0;
    [[nodiscard]] virtual QColor primary() const = 0;
    [[nodiscard]] virtual QColor highEmphasis() const = 0;
    [[nodiscard]] virtual QColor mediumEmphasis() const = 0;
    [[nodiscard]] virtual QColor success() const = 0;
    [[nodiscard]] virtual QColor alert() const = 0;
};

/// The design system's.
class Colors final : public Coloring {
public:
    [[nodiscard]] QColor background() const override { return kel::KelColors::background(); }
    [[nodiscard]] QColor primary() const override { return kel::KelColors::primary(); }
    [[nodiscard]] QColor highEmphasis() const override { return kel::KelColors::highEmphasis(); }
    [[nodiscard]] QColor mediumEmphasis() const override { return kel::KelColors::mediumEmphasis(); }
    [[nodiscard]] QColor success() const override { return kel::KelColors::success(); }
    [[nodiscard]] QColor alert() const override { return kel::KelColors::alert(); }
};

} // namespace quillet
