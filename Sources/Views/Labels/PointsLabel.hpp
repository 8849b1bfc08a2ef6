#pragma once

#include "Views/Labels/Captioned.hpp"
#include "Views/Labels/Label.hpp"
#include "Views/Labels/PointsPresenter.hpp"

namespace quillet {

/// A number of points and what they are, as a presenter words it.
class PointsLabel final : public Label {
    Q_OBJECT

public:
    /// `size` is an index of the font sizes: 5 where the points head a page, 6 elsewhere.
    PointsLabel(const PointsPresenter& presenter, int size,
                std::unique_ptr<Coloring> colors = std::make_unique<Colors>(),
                std::unique_ptr<FontsCreating> fonts = std::make_unique<FontsCreator>())
        : PointsLabel(Captioned::of(presenter.pointsText()), size, std::move(colors), std::move(fonts)) {}

    [[nodiscard]] QFont font() const override { return fonts().font(size_, 1); }
    [[nodiscard]] QColor color() const override { return colors().success(); }

private:
    PointsLabel(Captioned text, int size, std::unique_ptr<Coloring> colors,
                std::unique_ptr<FontsCreating> fonts)
        : Label(std::move(text.caption), std::move(text.value), std::move(colors), std::move(fonts)),
          size_(size) {}

    int size_;
};

} // namespace quillet
