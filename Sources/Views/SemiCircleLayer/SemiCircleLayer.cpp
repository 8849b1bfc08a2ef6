#include "Views/SemiCircleLayer/SemiCircleLayer.hpp"

#include "Views/Tokens/HexColor.hpp"

#include <numbers>

namespace quillet {

SemiCircleLayer::SemiCircleLayer(double diameter, const QRectF& parentLayerBounds)
    : diameter_(diameter), parentLayerBounds_(parentLayerBounds) {
    path = platform::CirclePath{parentLayerBounds.center(), diameter / 2, 0, 2 * std::numbers::pi};
    strokeColor = hexColor("#F4AB34", 1);
    lineWidth = 4;
    position = parentLayerBounds.center();
}

} // namespace quillet
