#pragma once

#include "Views/Tokens/Coloring.hpp"
#include "Views/Tokens/FontsCreating.hpp"
#include "Views/Tokens/ThemedView.hpp"

#include <memory>

namespace quillet {

/// A text in a font and colour of the design system, of which only the part behind the caption is bolder.
class Label : public ThemedView {
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption CONSTANT FINAL)
    Q_PROPERTY(QString value READ value CONSTANT FINAL)
    Q_PROPERTY(QFont font READ font CONSTANT FINAL)
    Q_PROPERTY(QColor color READ color NOTIFY themeChanged FINAL)

public:
    [[nodiscard]] const QString& caption() const { return caption_; }
    [[nodiscard]] const QString& value() const { return value_; }
    [[nodiscard]] QString text() const { return caption_ + value_; }
    [[nodiscard]] virtual QFont font() const = 0;
    [[nodiscard]] virtual QColor color() const = 0;

protected:
    Label(QString caption, QString value, std::unique_ptr<Coloring> colors,
          std::unique_ptr<FontsCreating> fonts)
        : caption_(std::move(caption)),
          value_(std::move(value)),
          colors_(std::move(colors)),
          fonts_(std::move(fonts)) {}
    [[nodiscard]] const Coloring& colors() const { return *colors_; }
    [[nodiscard]] const FontsCreating& fonts() const { return *fonts_; }

private:
    QString caption_;
    QString value_;
    std::unique_ptr<Coloring> colors_;
    std::unique_ptr<FontsCreating> fonts_;
};

} // namespace quillet
