#pragma once

#include "Views/Labels/Captioned.hpp"
#include "Views/Tokens/Coloring.hpp"
#include "Views/Tokens/FontsCreating.hpp"
#include "Views/Tokens/ThemedView.hpp"

#include <memory>

namespace quillet {

/// A text in a font and colour of the design system, of which only the part behind the caption is bolder.
class Label : public quillet::ThemedView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the view that holds it")
    Q_PROPERTY(quillet::Captioned text READ text CONSTANT FINAL)
    Q_PROPERTY(QFont font READ font NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor color READ color NOTIFY themeChanged FINAL)

public:
    [[nodiscard]] const Captioned& text() const { return text_; }
    [[nodiscard]] virtual QFont font() const = 0;
    [[nodiscard]] virtual QColor color() const = 0;

protected:
    Label(Captioned text, std::unique_ptr<Coloring> colors, std::unique_ptr<FontsCreating> fonts)
        : text_(std::move(text)), colors_(std::move(colors)), fonts_(std::move(fonts)) {}
    [[nodiscard]] const Coloring& colors() const { return *colors_; }
    [[nodiscard]] const FontsCreating& fonts() const { return *fonts_; }

private:
    Captioned text_;
    std::unique_ptr<Coloring> colors_;
    std::unique_ptr<FontsCreating> fonts_;
};

} // namespace quillet
