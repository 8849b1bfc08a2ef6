#include "Play/Keyboard.hpp"

#include "Play/PlayScript.hpp"

#include <QPointer>

#include <algorithm>
#include <vector>

namespace demo {

namespace {

constexpr int mostPresses = 60;
/// How long a person looks where the focus has gone.
constexpr std::chrono::milliseconds look{10};

} // namespace

QString Keyboard::enter(const QString& name) {
    // What is out of view need not have been made, but then there is a page that scrolls.
    const bool begins = Stage::wait(patience, [&] {
        return stage_.settled() && (stage_.reader().scrollable() || stage_.reader().knows(name));
    });
    if (!begins) {
        return QStringLiteral("nothing is called \"%1\"").arg(name);
    }
    QString fault = tabTo(name);
    if (fault.isEmpty()) {
        hands_.press(Qt::Key_Return);
    }
    return fault;
}

QString Keyboard::tabTo(const QString& name) {
    // A row may be destroyed, and another one made at its address.
    std::vector<QPointer<QQuickItem>> passed;
    QStringList names;
    while (passed.size() <= mostPresses) {
        const auto focus = stage_.reader().focus();
        if (focus && focus->isCalled(name)) {
            return notAt(name);
        }
        QQuickItem* const item = focus ? focus->item : nullptr;
        if (item && std::ranges::find(passed, item, &QPointer<QQuickItem>::data) != passed.end()) {
            return QStringLiteral("Tab comes round without reaching \"%1\"; it reaches %2")
                .arg(name, names.join(QStringLiteral(", ")));
        }
        passed.emplace_back(item);
        if (focus && !focus->text.isEmpty()) {
            names << u'"' + focus->text + u'"';
        }
        hands_.press(Qt::Key_Tab);
        Stage::letTimePass(look);
    }
    return QStringLiteral("%1 presses of Tab do not reach \"%2\"").arg(mostPresses).arg(name);
}

QString Keyboard::notAt(const QString& name) const {
    const auto focus = stage_.reader().focus();
    if (!focus || !focus->isCalled(name)) {
        return QStringLiteral("the focus is on \"%1\"").arg(focus ? focus->text : QString());
    }
    return stage_.reader().isWhollyShown(*focus->item)
               ? QString()
               : QStringLiteral("the focus is on \"%1\", which is not wholly in view").arg(name);
}

} // namespace demo
