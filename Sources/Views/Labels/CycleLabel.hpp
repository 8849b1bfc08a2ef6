#pragma once

#include "Views/Labels/Label.hpp"

namespace quillet {

/// "Ciclo actual: " and a short cycle code, which may be empty: the prefix then stands alone. It opens a
/// page.
class CycleLabel final : public quillet::Label {
    Q_OBJECT

public:
    explicit CycleLabel(const QString& cycle, std::unique_ptr<Coloring> colors = std::make_unique<Colors>(),
                        std::unique_ptr<FontsCreating> fonts = std::make_unique<FontsCreator>())
        : Label({QStringLiteral("Ciclo actual: ") + cycle, {}}, std::move(colors), std::move(fonts)) {}

    [[nodiscard]] QFont font() const override {
        return fonts().font(kel::KelFonts::Headline5, kel::KelFonts::Bold);
    }
    [[nodiscard]] QColor color() const override { return colors().highEmphasis(); }
};

} // namespace quillet
