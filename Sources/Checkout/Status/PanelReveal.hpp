#pragma once

#include <algorithm>
#include <numeric>
#include <vector>

namespace quillet {

/// Cuts a panel off at a share of its height, as rows see it: those above the cut are whole, one is cut, and nothing is
/// left of those below. Heights become known as the rows ask, from the top; heights are in device-independent pixels.
class PanelReveal {
public:
    /// Forgets the heights of the panel before.
    void begin() { heights_.clear(); }

    /// How much of row `row` (0 is the first below the head), `height` high, is above the cut. `share` is from 0 to 1.
    [[nodiscard]] double shown(int row, double height, double share) {
        const auto place = static_cast<std::size_t>(std::max(0, row));
        heights_.resize(std::max(heights_.size(), place + 1));
        heights_[place] = height;
        const auto here = heights_.begin() + static_cast<std::ptrdiff_t>(place);
        const double above = std::accumulate(heights_.begin(), here, 0.0);
        const double whole = std::accumulate(here, heights_.end(), above);
        return std::clamp(share * whole - above, 0.0, height);
    }

private:
    std::vector<double> heights_;
};

} // namespace quillet
