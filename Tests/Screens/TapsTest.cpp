#include "Gallery/GalleryStage.hpp"
#include "KelCommon/KelAnalyticsManager.hpp"
#include "Kept.hpp"
#include "Named.hpp"
#include "Play/Hands.hpp"
#include "Play/Stage.hpp"
#include "Quillet/Testing/RecordingHost.hpp"

#include <ranges>

namespace demo::testing {

namespace {

using quillet::testing::Call;
using quillet::testing::Reply;

/// What the host is told: on the way to a screen, and by a tap on each of its buttons.
struct Taps : ::testing::TestWithParam<std::string> {
    Taps() {
        kel::KelAnalyticsManager::shared()->setSink(
            std::make_shared<quillet::testing::RecordingAnalytics>(log));
        QObject::connect(&stage.journal(), &Journal::navigationChanged, [this] {
            log->push_back(stage.journal().navigationJson().last().toString().toStdString());
        });
    }
    ~Taps() override { kel::KelAnalyticsManager::shared()->setSink(nullptr); }

    /// Opens the screen and returns what the host was told meanwhile. From then on nothing is answered.
    QStringList open() {
        log->clear();
        const auto opened = stage.open(screen, {390, 1500});
        EXPECT_TRUE(opened) << opened.error().toStdString();
        for (const Call call : {Call::associate, Call::getOpenOrders, Call::checkout}) {
            stage.backend().script(call, {Reply::never()});
        }
        return told();
    }

    [[nodiscard]] std::vector<QAccessibleInterface*> buttons() const {
        auto all = quillet::testing::buttonsOf(*QAccessible::queryAccessibleInterface(stage.host().window()));
        std::erase_if(all, [](auto* button) { return button->object()->objectName() == "hostBack"; });
        return all;
    }

    /// What the host has been told since it was last asked.
    [[nodiscard]] QStringList told() const {
        // A button acts once the event is over.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        QStringList lines;
        for (const std::string& line : quillet::testing::taken(log)) {
            lines << "  " + QString::fromStdString(line);
        }
        return lines;
    }

    /// What a tap leads to: what the host is told, and what the back end is asked.
    QStringList tap(const std::function<void()>& act) {
        const ScreenReader reader(*stage.host().phone());
        const auto asked = static_cast<std::ptrdiff_t>(stage.backend().requests().size());
        act();
        // A dialog acts once it has faded.
        EXPECT_TRUE(Stage::wait(std::chrono::seconds(10), [&] { return !reader.named("dialogCloseIcon"); }));
        QStringList lines = told();
        const auto requests = stage.backend().requests();
        for (const auto& request : requests | std::views::drop(asked)) {
            const auto url = QString::fromStdString(request.url.absoluteString());
            lines << "  " + QString::fromStdString(request.httpMethod.value_or("GET")) + ' ' +
                         url.section(u'/', 3);
        }
        return lines.isEmpty() ? QStringList("  nothing") : lines;
    }

    const QString name = QString::fromStdString(GetParam());
    const GalleryScreen screen = galleryScreen(name.section(u'.', 0, 0));
    quillet::testing::Log log = quillet::testing::makeLog();
    GalleryStage stage;
};

} // namespace

TEST_P(Taps, TellTheHostWhatIsDescribed) {
    QStringList lines = QStringList("opening it:") + open();
    const std::size_t count = buttons().size();
    for (std::size_t i = 0; i < count; ++i) {
        if (i > 0) {
            open();
        }
        QAccessibleInterface* const button = buttons().at(i);
        lines << quillet::testing::reading(*button) + ":";
        lines << tap([&] { button->actionInterface()->doAction(QAccessibleActionInterface::pressAction()); });
    }
    if (screen.kind == GalleryKind::dialog) {
        open();
        lines << "beside the dialog:" << tap([&] {
            Hands(*stage.host().window()).tap({5, 5}, Device::mouse);
        });
    }
    expectKept(name, lines);
}

INSTANTIATE_TEST_SUITE_P(All, Taps, ::testing::ValuesIn(keptNames(QUILLET_KEPT_DESCRIPTIONS, "*.taps.txt")),
                         testName);

} // namespace demo::testing
