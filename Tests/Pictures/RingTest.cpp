#include "Gallery/GalleryStage.hpp"
#include "Play/Stage.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace demo::testing {

namespace {

constexpr QRect phoneMiddle{155, 382, 80, 80};

} // namespace

// The pictures that are kept show the ring at times that they set themselves. This one has it move.
TEST(Ring, MovesWhileItWaits) {
    const auto screens = galleryScreens(false);
    const auto loading = std::ranges::find(screens, QLatin1String("loading"), &GalleryScreen::name);
    GalleryStage stage;
    ASSERT_TRUE(stage.open(*loading, usualPhoneSize));
    const auto ring = [&] { return stage.grab().copy(phoneMiddle); };
    const QImage before = ring();
    EXPECT_TRUE(Stage::wait(std::chrono::seconds(3), [&] { return ring() != before; }));
}

} // namespace demo::testing
