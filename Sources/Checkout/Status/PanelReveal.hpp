#pragma once

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

namespace quillet {

/// Computes which part of each row is visible while a panel opens or closes: the panel is cut off at a share
/// of its height. Row 0 is the first below the head; heights are in device-independent pixels.
class PanelReveal {
public:
    /// Forgets the heights of the panel before.
    void begin() { heights_.clear(); }

    /// Returns whether the height has changed.
    bool setHeight(std::size_t row, double height) {
        heights_.resize(std::max(heights_.size(), row + 1));
        return std::exchange(heights_[row], height) != height;
    }

    /// Visible height of a row; 0 if the row's height is unknown. `share` is from 0 to 1.
    [[nodiscard]] double shown(std::size_t row, double share) const {
        if (row >= heights_.size()) {
            return 0;
        }
        const auto iterator = heights_.begin() + static_cast<std::ptrdiff_t>(row);
        const double above = std::accumulate(heights_.begin(), iterator, 0.0);
        const double whole = std::accumulate(iterator, heights_.end(), above);
        return std::clamp(share * whole - above, 0.0, *iterator);
    }

private:
    std::vector<double> heights_;
};

} // namespace quillet
