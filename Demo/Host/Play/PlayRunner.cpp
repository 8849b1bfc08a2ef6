#include "Play/PlayRunner.hpp"

#include "KelDS/KelAppearance.hpp"
#include "Language.hpp"
#include "Play/Scroller.hpp"

#include <QGuiApplication>
#include <QJsonArray>

#include <algorithm>
#include <utility>

namespace demo {

namespace {

/// How often a step that scrolls through a long list checks again.
constexpr std::chrono::milliseconds scrollGlance{1};
/// How long a picture waits until nothing moves.
constexpr std::chrono::milliseconds comingToRest{600};

QPointF middle(const QQuickItem& item) {
    return item.mapToScene(QPointF(item.width() / 2, item.height() / 2));
}

/// A dialog's card stands in the middle, so a tap just below the upper edge is on the background.
QPointF upperEdge(const QQuickItem& item) {
    return item.mapToScene(QPointF(item.width() / 2, 4));
}

} // namespace

PlayRunner::PlayRunner(HostApplication& host, Journal& journal, NetworkSwitch& network,
                       const Appearance& appearance, QString shots)
    : host_(host),
      journal_(journal),
      network_(network),
      shots_(std::move(shots)),
      appearance_(appearance),
      size_(host.area().size()),
      stage_(host),
      reader_(stage_.reader()),
      hands_(*host.window()),
      keyboard_(hands_, stage_) {}

QJsonObject PlayRunner::run(const PlayScript& play) {
    journal_.clear();
    network_.setOn(true);
    restore();
    QJsonArray reports;
    bool ok = true;
    for (const PlayLine& line : play.lines) {
        const QString missing = perform(line.step);
        ok = missing.isEmpty();
        QJsonArray texts = QJsonArray::fromStringList(reader_.texts());
        QJsonObject report{{QStringLiteral("step"), line.text},
                           {QStringLiteral("ok"), ok},
                           {QStringLiteral("title"), stage_.title()},
                           {QStringLiteral("texts"), texts}};
        if (const auto* shot = std::get_if<steps::Shot>(&line.step); shot && ok) {
            report[QStringLiteral("shot")] = shot->name + QStringLiteral(".png");
        }
        if (!ok) {
            report[QStringLiteral("missing")] = missing;
        }
        reports.append(report);
        if (!ok) {
            break;
        }
    }
    // The play includes what its last step started, such as the action of a dialog that is still fading.
    Stage::wait(patience, [this] { return stage_.settled(); });
    QJsonObject result{{QStringLiteral("name"), play.name},
                       {QStringLiteral("ok"), ok},
                       {QStringLiteral("steps"), reports},
                       {QStringLiteral("requests"), journal_.requestsJson()},
                       {QStringLiteral("analytics"), journal_.analyticsJson()},
                       {QStringLiteral("navigation"), journal_.navigationJson()}};
    if (std::ranges::any_of(play.lines, [](const PlayLine& line) {
            return std::holds_alternative<steps::Handmade>(line.step);
        })) {
        result[QStringLiteral("handmade")] = true;
    }
    host_.close();
    Stage::wait(patience, [this] { return stage_.settled(); });
    return result;
}

QString PlayRunner::perform(const Step& step) {
    return std::visit([this](const auto& kind) { return perform(kind); }, step);
}

QString PlayRunner::perform(const steps::Open& step) {
    hasOpened_ = true;
    return host_.open(step.order) ? QString() : QStringLiteral("the module did not open");
}

QString PlayRunner::perform(const steps::Handmade& step) {
    hasOpened_ = true;
    return host_.openHandmade(step.code.toStdString()) ? QString()
                                                       : QStringLiteral("the module did not open");
}

QString PlayRunner::perform(const steps::Language& step) {
    if (hasOpened_) {
        return QStringLiteral("the language is chosen before the first screen");
    }
    useLanguage(step.code);
    return {};
}

QString PlayRunner::perform(const steps::Close&) {
    host_.close();
    return Stage::wait(patience, [this] { return stage_.settled(); })
               ? QString()
               : QStringLiteral("the module did not close");
}

QString PlayRunner::perform(const steps::Tap& step) {
    if (step.by == Device::key) {
        return keyboard_.enter(step.name);
    }
    const bool tapped = Stage::wait(
        patience,
        [&] {
            if (tapHere(step)) {
                return true;
            }
            scrollTowards(step.name);
            return false;
        },
        scrollGlance);
    return tapped ? QString() : QStringLiteral("nothing to tap is called \"%1\"").arg(step.name);
}

QString PlayRunner::perform(const steps::Expect& step) {
    return Stage::wait(step.within, [&] { return stage_.settled() && reader_.shows(step.text); })
               ? QString()
               : QStringLiteral("not on the screen: \"%1\"").arg(step.text);
}

QString PlayRunner::perform(const steps::Absent& step) {
    return Stage::wait(step.within, [&] { return stage_.settled() && !reader_.shows(step.text); })
               ? QString()
               : QStringLiteral("still on the screen: \"%1\"").arg(step.text);
}

QString PlayRunner::perform(const steps::Title& step) {
    return Stage::wait(step.within, [&] { return stage_.settled() && stage_.title() == step.text; })
               ? QString()
               : QStringLiteral("the title is \"%1\"").arg(stage_.title());
}

QString PlayRunner::perform(const steps::Background& step) {
    return answerDialog(QStringLiteral("dialogBackground"), upperEdge, step.by);
}

QString PlayRunner::perform(const steps::CloseIcon& step) {
    return answerDialog(QStringLiteral("dialogCloseIcon"), middle, step.by);
}

QString PlayRunner::perform(const steps::Scroll& step) {
    // Rows made on the way change the estimated end, so the end is reached once it stays the same. A page
    // that is wholly in view does not scroll.
    int stays = 0;
    const bool arrived = Stage::wait(patience, [&] {
        QQuickItem* page = reader_.scrollable();
        stays = stage_.settled() && (!page || Scroller(*page).toEdge(step.toEnd)) ? stays + 1 : 0;
        return stays > 2;
    });
    return arrived ? QString() : QStringLiteral("the screen does not come to rest");
}

QString PlayRunner::perform(const steps::Back&) {
    const bool went = Stage::wait(patience, [this] {
        const auto* back = host_.phone()->findChild<QQuickItem*>(QStringLiteral("hostBack"));
        if (!back || !stage_.settled() || !reader_.reaches(*back, middle(*back))) {
            return false;
        }
        hands_.tap(middle(*back), Device::mouse);
        return true;
    });
    return went ? QString() : QStringLiteral("there is no way back");
}

QString PlayRunner::perform(const steps::Shot& step) {
    const QString file = shots_ + u'/' + step.name + QStringLiteral(".png");
    Stage::wait(patience, [this] { return stage_.settled(); });
    // Something may still move: for a while, like an opening section, or without end, like the ring.
    QImage picture;
    Stage::wait(comingToRest, [&] {
        const QImage before = std::exchange(picture, host_.window()->grabWindow());
        return picture == before;
    });
    return picture.save(file) ? QString() : QStringLiteral("cannot write %1").arg(file);
}

QString PlayRunner::perform(const steps::Network& step) {
    network_.setOn(step.on);
    return {};
}

QString PlayRunner::perform(const steps::Size& step) {
    host_.area().resize(step.size);
    const bool resized =
        Stage::wait(patience, [&] { return stage_.settled() && host_.phone()->size() == QSizeF(step.size); });
    return resized ? QString() : QStringLiteral("the screen does not take this size");
}

QString PlayRunner::perform(const steps::Theme& step) {
    kel::KelAppearance::current().setTheme(step.theme);
    return {};
}

QString PlayRunner::perform(const steps::TextScale& step) {
    kel::KelAppearance::current().setTextScale(step.percent / 100.0);
    return {};
}

QString PlayRunner::perform(const steps::Motion& step) {
    kel::KelAppearance::current().setReducedMotion(step.reduced);
    return {};
}

QString PlayRunner::perform(const steps::Direction& step) {
    QGuiApplication::setLayoutDirection(step.direction);
    return {};
}

QString PlayRunner::perform(const steps::Insets& step) {
    quillet::setSafeAreaInsets(*host_.phone(), step.margins);
    return {};
}

QString PlayRunner::perform(const steps::Press& step) {
    if (!Stage::wait(patience, [this] { return stage_.settled(); })) {
        return QStringLiteral("the screen does not come to rest");
    }
    hands_.press(step.key);
    return {};
}

QString PlayRunner::perform(const steps::Focused& step) {
    QString fault;
    const bool there = Stage::wait(step.within, [&] {
        fault = keyboard_.notAt(step.name);
        return stage_.settled() && fault.isEmpty();
    });
    return there || !fault.isEmpty() ? fault : QStringLiteral("the screen does not come to rest");
}

void PlayRunner::restore() {
    apply(appearance_);
    host_.area().resize(size_);
    quillet::setSafeAreaInsets(*host_.phone(), {});
}

QString PlayRunner::answerDialog(const QString& part, QPointF (*where)(const QQuickItem&), Device by) {
    const bool answered = Stage::wait(patience, [&] {
        const QQuickItem* item = stage_.settled() ? reader_.named(part) : nullptr;
        if (!item || !reader_.reaches(*item, where(*item))) {
            return false;
        }
        by == Device::key ? hands_.press(Qt::Key_Escape) : hands_.tap(where(*item), by);
        return true;
    });
    return answered ? QString() : QStringLiteral("there is no dialog");
}

bool PlayRunner::tapHere(const steps::Tap& step) {
    if (!stage_.settled()) {
        return false;
    }
    for (const ScreenElement& element : reader_.elements()) {
        if (element.isCalled(step.name) && element.visible && element.enabled) {
            hands_.tap(element.center, step.by);
            return true;
        }
    }
    return false;
}

void PlayRunner::scrollTowards(const QString& name) {
    QQuickItem* page = stage_.settled() ? reader_.scrollable() : nullptr;
    if (!page) {
        return;
    }
    for (const ScreenElement& element : reader_.elements()) {
        if (element.isCalled(name)) {
            return Scroller(*page).toMiddle(element.center.y());
        }
    }
    Scroller(*page).onwards();
}

} // namespace demo
