#include "Quillet/Quillet.hpp"
#include "Quillet/Testing.hpp"
#include "Support/Stage.hpp"

#include <QAccessible>
#include <QMetaProperty>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>
#include <mutex>

namespace quillet::testing {

namespace {

/// Everything that can be read of a window: by QML or an automation, and by an assistive program.
class Reading {
public:
    void read(QQuickWindow& window) {
        seen_.clear();
        read(*window.contentItem());
        read(*QAccessible::queryAccessibleInterface(&window));
    }

    std::string all;

private:
    void read(const QObject& object) {
        if (seen_.contains(&object)) {
            return;
        }
        seen_.insert(&object);
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
    void read(const QAccessibleInterface& interface) {
        for (const auto text : {QAccessible::Name, QAccessible::Description, QAccessible::Value,
                                QAccessible::Help, QAccessible::Accelerator}) {
            all += interface.text(text).toStdString() + '\n';
        }
        for (int i = 0; i < interface.childCount(); ++i) {
            read(*interface.child(i));
        }
    }

    QSet<const QObject*> seen_;
};

} // namespace

TEST(Secrets, AreInNothingThatIsShownReadOrLogged) {
    const auto backend = ScriptedBackend::install();
    auto configuration = platform::URLSessionConfiguration::defaultConfiguration();
    const auto log = makeLog();
    std::mutex mutex;
    configuration.log = [&](const platform::LoggedCall& call) {
        const std::lock_guard lock(mutex);
        log->push_back(description(call));
    };
    platform::URLSessionConfiguration::setDefaultConfiguration(configuration);
    backend->script(Call::checkout, {Reply{.status = 500}, Reply::sample(Call::checkout)});
    const auto starter = Starter::create("distinctive", "idp", {"cart-1", 41052, "CL"}, nullptr);
    const std::string token = starter->authorization().jwt;
    Stage stage;
    Reading reading;
    ASSERT_TRUE(turnUntil([&] { return stage.stack().height() > 0 && stage.window().isExposed(); }));
    ASSERT_TRUE(present(starter->createRootViewController(), stage.stack()));
    const QString send = "Enviar productos a mi carrito";
    for (const QString& step : {QString("Ver Pedidos"), send, QString("Actualizar")}) {
        const bool shown = turnUntil([&] { return stage.shows(step); }) &&
                           turnUntil([&] { return !stage.stack().property("busy").toBool(); });
        ASSERT_TRUE(shown) << step.toStdString();
        reading.read(stage.window());
        stage.click(step);
        // A dialog lets nothing be clicked below it until it has gone; this button stays.
        ASSERT_TRUE(turnUntil([&] { return step == send || !stage.shows(step); }));
    }
    ASSERT_TRUE(turnUntil([&] { return stage.shows("Ir al carrito"); }));
    reading.read(stage.window());
    ScriptedBackend::uninstall();
    for (const auto& lines : {*log, Stage::complaints()}) {
        for (const std::string& line : lines) {
            reading.all += line + '\n';
        }
    }
    EXPECT_EQ(*backend->requests().at(0).headerFields.value("Consultant-Token"), token);
    for (const char* shown :
         {"Ups, tuvimos un problema", "20 puntos enviados en total", "POST /quillet-bff/"}) {
        EXPECT_NE(reading.all.find(shown), std::string::npos) << shown;
    }
    for (const std::string& hidden : {std::string("distinctive"), token.substr(token.find('.'), 20),
                                      token.substr(token.rfind('.')), std::string(QUILLET_SIGNING_SECRET)}) {
        const auto found = reading.all.find(hidden);
        EXPECT_EQ(found, std::string::npos) << reading.all.substr(std::min(found, reading.all.size()), 100);
    }
}

} // namespace quillet::testing
