#pragma once

#include "KelDSIcons/KelDSIcons.hpp"
#include "Views/Tokens/Coloring.hpp"
#include "Views/Tokens/Sizing.hpp"
#include "Views/Tokens/ThemedView.hpp"

#include <memory>

namespace quillet {

/// The icon at the top of a result: a catalogue icon on a disc in the result's colour, optionally with a
/// small mark at its edge. Main thread only.
class IconStatusProductsView : public quillet::ThemedView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of a ProductsHeaderView")
    Q_PROPERTY(int iconNumber READ iconNumber CONSTANT FINAL)
    Q_PROPERTY(int iconSize READ iconSize CONSTANT FINAL)
    Q_PROPERTY(QColor iconColor READ iconColor NOTIFY themeChanged FINAL)
    Q_PROPERTY(bool hasMark READ hasMark CONSTANT FINAL)
    Q_PROPERTY(int markNumber READ markNumber CONSTANT FINAL)
    Q_PROPERTY(int markSize READ markSize CONSTANT FINAL)
    Q_PROPERTY(QColor tone READ tone NOTIFY themeChanged FINAL)

public:
    [[nodiscard]] virtual int iconNumber() const = 0;
    [[nodiscard]] virtual QColor iconColor() const = 0;
    /// The colour of disc and mark.
    [[nodiscard]] virtual QColor tone() const = 0;
    [[nodiscard]] virtual bool hasMark() const { return true; }
    /// Unspecified without a mark.
    [[nodiscard]] virtual int markNumber() const { return 0; }
    [[nodiscard]] int iconSize() const { return sizing_->mediumX(); }
    [[nodiscard]] int markSize() const { return sizing_->small(); }

protected:
    [[nodiscard]] const Coloring& colors() const { return *colors_; }

private:
    std::unique_ptr<Coloring> colors_ = std::make_unique<Colors>();
    std::unique_ptr<Sizing> sizing_ = std::make_unique<Sizer>();
};

/// Everything was sent.
class IconProductsSuccessView final : public quillet::IconStatusProductsView {
    Q_OBJECT

public:
    [[nodiscard]] int iconNumber() const override { return int(kel::KelIconNumber::inventory); }
    [[nodiscard]] QColor iconColor() const override { return colors().highEmphasis(); }
    [[nodiscard]] int markNumber() const override { return int(kel::KelIconNumber::checkCircle); }
    [[nodiscard]] QColor tone() const override { return colors().success(); }
};

/// Something was not sent.
class IconProductsFailureView final : public quillet::IconStatusProductsView {
    Q_OBJECT

public:
    [[nodiscard]] int iconNumber() const override { return int(kel::KelIconNumber::inventory); }
    [[nodiscard]] QColor iconColor() const override { return colors().highEmphasis(); }
    [[nodiscard]] int markNumber() const override { return int(kel::KelIconNumber::error); }
    [[nodiscard]] QColor tone() const override { return colors().alert(); }
};

/// Nothing was sent.
class IconWarningView final : public quillet::IconStatusProductsView {
    Q_OBJECT

public:
    [[nodiscard]] int iconNumber() const override { return int(kel::KelIconNumber::warning); }
    [[nodiscard]] QColor iconColor() const override { return tone(); }
    [[nodiscard]] bool hasMark() const override { return false; }
    [[nodiscard]] QColor tone() const override { return kel::KelColors::warning(); }
};

} // namespace quillet
