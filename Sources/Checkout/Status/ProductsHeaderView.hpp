#pragma once

#include "Checkout/Status/IconStatusProductsView.hpp"
#include "Checkout/Status/TextWithTagView.hpp"
#include "Views/Tokens/FontsCreating.hpp"
#include "Views/Tokens/Spacing.hpp"

#include <QList>

#include <memory>

namespace quillet {

/// The card at the top of a result: icon, main message, and below a divider the counter rows.
class ProductsHeaderView final : public quillet::ThemedView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of a ProductsCheckoutStatusView")
    Q_PROPERTY(quillet::IconStatusProductsView* iconView READ iconView CONSTANT FINAL)
    Q_PROPERTY(QString mainMessage READ mainMessage CONSTANT FINAL)
    Q_PROPERTY(QFont mainMessageFont READ mainMessageFont NOTIFY themeChanged FINAL)
    Q_PROPERTY(QColor mainMessageColor READ mainMessageColor NOTIFY themeChanged FINAL)
    Q_PROPERTY(QList<quillet::TextWithTagView> textWithTagViews READ textWithTagViews CONSTANT FINAL)

public:
    ProductsHeaderView(std::unique_ptr<IconStatusProductsView> iconView, QString mainMessage,
                       QList<TextWithTagView> textWithTagViews,
                       std::unique_ptr<FontsCreating> fonts = std::make_unique<FontsCreator>(),
                       std::unique_ptr<Coloring> colors = std::make_unique<Colors>(),
                       std::unique_ptr<Spacing> spacing = std::make_unique<Spacer>())
        : fonts_(std::move(fonts)),
          colors_(std::move(colors)),
          spacing_(std::move(spacing)),
          mainMessage_(std::move(mainMessage)),
          iconView_(std::move(iconView)),
          textWithTagViews_(std::move(textWithTagViews)) {}

    [[nodiscard]] IconStatusProductsView* iconView() const { return iconView_.get(); }
    [[nodiscard]] const QString& mainMessage() const { return mainMessage_; }
    [[nodiscard]] QFont mainMessageFont() const {
        return fonts_->font(kel::KelFonts::Subtitle1, kel::KelFonts::Medium);
    }
    [[nodiscard]] QColor mainMessageColor() const { return colors_->highEmphasis(); }
    [[nodiscard]] const QList<TextWithTagView>& textWithTagViews() const { return textWithTagViews_; }

private:
    std::unique_ptr<FontsCreating> fonts_;
    std::unique_ptr<Coloring> colors_;
    // The QML that lays the view out reads the same tokens from the design system.
    std::unique_ptr<Spacing> spacing_;
    QString mainMessage_;
    std::unique_ptr<IconStatusProductsView> iconView_;
    QList<TextWithTagView> textWithTagViews_;
};

} // namespace quillet
