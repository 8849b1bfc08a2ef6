#pragma once

#include "Views/Labels/Label.hpp"
#include "Views/Labels/PointsPresenter.hpp"

namespace quillet {

/// A number of points and what they are, as a presenter words it.
class PointsLabel final : public quillet::Label {
    Q_OBJECT

public:
    /// `size` is an index of the font sizes.
    PointsLabel(const PointsPresenter& presenter, int size,
                std::unique_ptr<Coloring> colors = std::make_unique<Colors>(),
                std::unique_ptr<FontsCreating> fonts = std::make_unique<FontsCreator>())
        : Label(presenter.captioned(), std::move(colors), std::move(fonts)), size_(size) {}

    [[nodiscard]] QFont font() const override { return fonts().font(size_, kel::KelFonts::Medium); }
    [[nodiscard]] QColor color() const override { return colors().success(); }

private:
    int size_;
};

} // namespace quillet
