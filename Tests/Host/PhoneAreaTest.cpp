#include "PhoneArea.hpp"

#include <gtest/gtest.h>

namespace demo::testing {

TEST(PhoneArea, HasLiveBesideItWhereTheDesktopHasRoom) {
    const std::tuple<QSize, QSize, QSize> cases[] = {
        {{768, 1024}, {1920, 1080}, {1558, 1024}},
        {{320, 320}, {1366, 768}, {1110, 768}},
        {{846, 390}, {1366, 768}, {1366, 768}},
        {{847, 390}, {1366, 768}, {}},
        {{390, 844}, {}, {}},
    };
    for (const auto& [phone, desktop, window] : cases) {
        const WindowLayout layout = windowBesideLive(phone, usualLiveSize, desktop);
        EXPECT_EQ(layout.live, window.isValid());
        EXPECT_EQ(layout.window, window) << phone.width() << " on " << desktop.width();
    }
}

TEST(PhoneArea, SizesItsWindowAndFollowsIt) {
    QWindow window;
    PhoneArea area({390, 844}, true);
    area.arrange(window);
    EXPECT_EQ(window.size(), QSize(390, 844 + sizeStripHeight));
    EXPECT_EQ(area.choice(), 1);

    area.choose(3);
    EXPECT_EQ(window.size(), QSize(768, 1024 + sizeStripHeight));

    window.resize(500, 700);
    EXPECT_EQ(area.size(), QSize(500, 700 - sizeStripHeight));
    EXPECT_EQ(area.choice(), -1);
    EXPECT_EQ(window.minimumSize(), QSize(320, 320 + sizeStripHeight));
    EXPECT_EQ(window.maximumSize(), QSize(1280, 1280 + sizeStripHeight));
}

} // namespace demo::testing
