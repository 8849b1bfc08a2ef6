#include "KelDS/KelDS.hpp"
#include "KelDS/KelDialogController.hpp"
#include "Kept.hpp"
#include "Looks.hpp"

#include <QQmlComponent>
#include <QQmlEngine>

namespace demo::testing {

namespace {

/// Each control in each state in which it looks otherwise, one below the other.
constexpr auto controls = R"(
    import QtQuick
    import QtQuick.Controls.Basic
    import KelDS
    ApplicationWindow {
        width: 390; height: 1500; visible: true
        Column {
            spacing: 8
            KelButton { text: "contained" }
            KelButton { text: "contained, pressed"; down: true }
            KelButton { text: "contained, disabled"; enabled: false }
            KelButton { text: "contained, focused"; showsFocus: true }
            KelButton { text: "outlined"; outlined: true }
            KelButton { text: "outlined, pressed"; outlined: true; down: true }
            KelButton { text: "outlined, disabled"; outlined: true; enabled: false }
            KelIconButton { text: "icon"; number: KelIcons.Close }
            KelIconButton { text: "icon, pressed"; number: KelIcons.Close; down: true }
            KelIconButton { text: "icon, focused"; number: KelIcons.Close; showsFocus: true }
            KelPanelHead { width: 358; title: "open"; tone: KelColors.success; expanded: true }
            KelPanelHead { width: 358; title: "pressed"; tone: KelColors.alert; expanded: false; down: true }
            KelPanelHead { width: 358; title: "focused"; tone: KelColors.alert; expanded: false; showsFocus: true }
            KelTabs { width: 358; titles: ["first", "second"]; currentIndex: 1 }
            Repeater {
                model: [KelTagColor.Primary, KelTagColor.Success, KelTagColor.Warning, KelTagColor.Alert, KelTagColor.Link]
                KelTag { text: "tag"; tagColor: modelData }
            }
        }
    })";

} // namespace

TEST(Controls, LookAndSoundAsTheyAreDescribed) {
    QQmlEngine engine;
    kel::useDesignSystem(engine);
    QQmlComponent component(&engine);
    component.setData(controls, {});
    const std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow*>(component.create()));
    ASSERT_TRUE(window) << component.errorString().toStdString();
    const QStringList looks = looksOf(*window->contentItem());
    kel::KelDialogController::present(std::make_unique<kel::KelDialogController>("Title", "Body"), engine,
                                      *window->contentItem(), false);
    expectKept(QStringLiteral("controls"), looks + heardOf(*window));
}

} // namespace demo::testing
