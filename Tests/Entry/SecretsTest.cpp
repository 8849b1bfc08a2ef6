#include "Support/ModuleTest.hpp"
#include "Support/Reading.hpp"

#include <QMetaProperty>

#include <algorithm>
#include <mutex>
#include <set>

namespace quillet::testing {

namespace {

/// Reads everything that can be read of a window: by QML or an automation, and by an assistive program.
struct Secrets : ModuleTest {
    void read() {
        seen.clear();
        read(*stage->window().contentItem());
        const QStringList heard = readingOrder(*QAccessible::queryAccessibleInterface(&stage->window()));
        all += heard.join('\n').toStdString();
    }
    void read(const QObject& object) {
        if (!seen.insert(&object).second) {
            return;
        }
        for (int i = 0; i < object.metaObject()->propertyCount(); ++i) {
            const QVariant value = object.metaObject()->property(i).read(&object);
            all += value.toString().toStdString() + '\n';
            // What the module gives to QML, and what that shows in turn.
            if (const auto* const given = value.value<QObject*>()) {
                read(*given);
            }
        }
        if (const auto* const item = qobject_cast<const QQuickItem*>(&object)) {
            for (const QQuickItem* child : item->childItems()) {
                read(*child);
            }
        }
    }

    std::string all;
    std::set<const QObject*> seen;
};

} // namespace

TEST_F(Secrets, AreInNothingThatIsShownReadOrLogged) {
    auto configuration = platform::URLSessionConfiguration::defaultConfiguration();
    std::mutex mutex;
    std::string logged;
    configuration.log = [&](const platform::LoggedCall& call) {
        const std::lock_guard lock(mutex);
        logged += description(call) + '\n';
    };
    platform::URLSessionConfiguration::setDefaultConfiguration(configuration);
    backend->script(Call::checkout, {Reply{.status = 500}, Reply::sample(Call::checkout)});
    const auto starter = Starter::create("distinctive", "idp", {"cart-1", 41052, "CL"}, nullptr);
    const std::string token = starter->authorization().jwt;
    ASSERT_TRUE(present(starter->createRootViewController(), stage->stack()));
    for (const QString& step : {viewOrders, send, retry, goToCart}) {
        ASSERT_TRUE(comesToShow(step)) << step.toStdString();
        read();
        stage->click(step);
    }
    ScriptedBackend::uninstall();
    all += logged;
    EXPECT_EQ(*backend->requests().at(0).headerFields.value("Consultant-Token"), token);
    for (const char* shown :
         {"Ups, tuvimos un problema", "20 puntos enviados en total", "POST /quillet-bff/"}) {
        EXPECT_NE(all.find(shown), std::string::npos) << shown;
    }
    for (const std::string& hidden : {std::string("distinctive"), token.substr(token.find('.'), 20),
                                      token.substr(token.rfind('.')), std::string(QUILLET_SIGNING_SECRET)}) {
        const auto found = all.find(hidden);
        EXPECT_EQ(found, std::string::npos) << all.substr(std::min(found, all.size()), 100);
    }
}

} // namespace quillet::testing
