#pragma once

#include "Views/ProgressIndicatorCircular/ProgressIndicatorCircularAnimating.hpp"
#include "Views/SemiCircleLayer/SemiCircleLayer.hpp"

#include <QObject>
#include <QSizeF>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace quillet {

/// Model of the circular progress indicator: a circle with an animated arc. A ProgressIndicatorItem draws it.
/// Main thread only.
class ProgressIndicatorCircular final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by a LoadingView")

public:
    enum class Action { showAndStartAnimation, hideAndStopAnimation };
    enum class Size { standard, semi, medium, large };

    explicit ProgressIndicatorCircular(std::unique_ptr<ProgressIndicatorCircularAnimating> animator);

    /// Hiding takes effect immediately and removes the layers; showing takes effect with the next `draw`.
    void configure(Action action, Size size);
    /// Fills the ring white, or not at all.
    void configure(bool useBackgroundLayer);

    /// Applies the configuration. Drawing again adds no further layers. `bounds` is the item's size.
    void draw(const QSizeF& bounds);

    [[nodiscard]] bool isVisible() const { return isVisible_; }
    /// Holds the circle layer while the indicator shows, else nothing.
    [[nodiscard]] const platform::ShapeLayer& layer() const { return layer_; }
    /// Null until it is first drawn.
    [[nodiscard]] const SemiCircleLayer* semiCircleLayer() const { return semiCircleLayer_.get(); }

private:
    void hide();
    void addCircleAndSemiCircle(const QSizeF& bounds);

    std::unique_ptr<ProgressIndicatorCircularAnimating> animator_;
    Action action_ = Action::hideAndStopAnimation;
    Size size_ = Size::standard;
    bool isVisible_ = false;
    platform::ShapeLayer layer_;
    std::shared_ptr<platform::ShapeLayer> circleLayer_ = std::make_shared<platform::ShapeLayer>();
    std::shared_ptr<SemiCircleLayer> semiCircleLayer_;
};

} // namespace quillet
