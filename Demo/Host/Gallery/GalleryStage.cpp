#include "Gallery/GalleryStage.hpp"

#include "KelDS/KelAppearance.hpp"
#include "Play/Scroller.hpp"
#include "Play/Stage.hpp"
#include "Views/ProgressIndicatorCircular/ProgressIndicatorItem.hpp"

#include <QAccessible>
#include <QQmlProperty>
#include <QTimer>

#include <array>
#include <utility>

namespace demo {

namespace {

using quillet::testing::Call;

constexpr std::chrono::seconds patience{10};
constexpr std::chrono::milliseconds glance{5};

// What automation finds these by, in every language.
const QString closeIcon = QStringLiteral("dialogCloseIcon");
const QString sendButton = QStringLiteral("Send products to my cart");
const QString resultList = QStringLiteral("result");

void forEachItem(QQuickItem& item, const std::function<void(QQuickItem&)>& look) {
    look(item);
    for (QQuickItem* child : item.childItems()) {
        forEachItem(*child, look);
    }
}

/// Presses as a screen reader does, which leaves the focus where it is.
bool press(QQuickItem* button) {
    QAccessibleInterface* element = button ? QAccessible::queryAccessibleInterface(button) : nullptr;
    if (!element || !element->actionInterface()) {
        return false;
    }
    element->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    return true;
}

QQuickItem* openSection(const ScreenReader& reader) {
    for (const ScreenElement& element : reader.elements()) {
        const auto state = QAccessible::queryAccessibleInterface(element.item)->state();
        if (state.expanded) {
            return element.item;
        }
    }
    return nullptr;
}

} // namespace

GalleryStage::GalleryStage()
    : backend_(quillet::testing::ScriptedBackend::install()),
      area_(usualPhoneSize, false),
      host_(std::make_shared<HostApplication>(journal_, status_, area_, "[]")) {
    // A picture waits until nothing moves, so the less moves the better.
    kel::KelAppearance::current().setReducedMotion(true);
    isLoaded_ = host_->load(host_);
    if (isLoaded_) {
        reader_.emplace(*host_->phone());
    }
}

GalleryStage::~GalleryStage() {
    host_.reset();
    quillet::testing::ScriptedBackend::uninstall();
}

std::expected<void, QString> GalleryStage::open(const GalleryScreen& screen, QSize size) {
    if (!isLoaded_) {
        return std::unexpected(QStringLiteral("the window does not load"));
    }
    host_->close();
    area_.resize(size);
    if (!Stage::wait(
            patience, [&] { return Stage(*host_).settled() && hasSize(size); }, glance)) {
        return std::unexpected(QStringLiteral("the window does not take its size"));
    }
    for (const Call call : {Call::associate, Call::getOpenOrders, Call::checkout}) {
        const auto reply = screen.replies.find(call);
        backend_->script(call, reply == screen.replies.end() ? std::deque<quillet::testing::Reply>()
                                                             : std::deque{reply->second});
    }
    part_ = screen.part;
    const bool opens = screen.refusal.empty()
                           ? host_->open({.cart = {"7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3", 41052, "CL"},
                                          .accessToken = "sample-access-token",
                                          .authorizationProvider = "sample-idp"})
                           : host_->openHandmade(screen.refusal);
    const auto settles = [this](const std::function<bool()>& done) {
        return Stage::wait(
            patience, [&] { return Stage(*host_).settled() && done(); }, glance);
    };
    bool goesOn = opens;
    for (const GalleryStep step : screen.steps) {
        goesOn = goesOn && settles([&] { return begin(step); }) && settles([&] { return isDone(step); });
    }
    if (!goesOn || !settles([&] { return isReached(screen); })) {
        return std::unexpected(screen.name + QStringLiteral(" is not reached"));
    }
    return {};
}

std::expected<QImage, QString> GalleryStage::picture(const GalleryTheme& theme,
                                                     const GalleryTextSize& textSize, double ringTime) {
    kel::KelAppearance::current().setTheme(theme.theme);
    kel::KelAppearance::current().setTextScale(textSize.percent / 100.0);
    forEachItem(*host_->window()->contentItem(), [&](QQuickItem& item) {
        if (qobject_cast<quillet::ProgressIndicatorItem*>(&item)) {
            // Written this way it no longer follows its clock.
            QQmlProperty::write(&item, QStringLiteral("time"), ringTime);
        }
    });
    QImage picture;
    const auto rests = [&] {
        // Asked first: taking a picture moves the animations on.
        const bool isAtRest = Stage(*host_).settled() && isScrolled();
        const QImage before = std::exchange(picture, grab());
        return isAtRest && picture == before;
    };
    if (!Stage::wait(patience, rests, glance)) {
        return std::unexpected(QStringLiteral("the screen does not come to rest"));
    }
    return picture;
}

bool GalleryStage::hasSize(QSize size) const {
    return host_->phone()->size() == QSizeF(size) && host_->window()->size() == size;
}

bool GalleryStage::begin(GalleryStep step) {
    switch (step) {
    case GalleryStep::closeDialog:
        return press(reader_->named(closeIcon));
    case GalleryStep::sendProducts:
        return press(reader_->named(sendButton));
    case GalleryStep::closeSection:
        if (press(openSection(*reader_))) {
            return true;
        }
        // The head may be below what has been made of the list.
        if (QQuickItem* page = reader_->named(resultList)) {
            Scroller(*page).onwards();
        }
        return false;
    case GalleryStep::waitLong:
        bool waits = false;
        forEachItem(*host_->phone(), [&](QQuickItem& item) {
            const auto* loading = item.property("loadingView").value<QObject*>();
            if (auto* timer = loading ? loading->findChild<QTimer*>() : nullptr; timer && timer->isActive()) {
                // In place of the five seconds.
                timer->start(0);
                waits = true;
            }
        });
        return waits;
    }
    return false;
}

bool GalleryStage::isDone(GalleryStep step) const {
    switch (step) {
    case GalleryStep::closeDialog:
        return !reader_->named(closeIcon);
    case GalleryStep::sendProducts:
        return !reader_->named(sendButton);
    case GalleryStep::closeSection:
    case GalleryStep::waitLong:
        return true;
    }
    return true;
}

bool GalleryStage::isReached(const GalleryScreen& screen) const {
    switch (screen.kind) {
    case GalleryKind::loading:
        return isLoading();
    case GalleryKind::dialog:
        return reader_->named(closeIcon);
    case GalleryKind::summary:
        return reader_->named(sendButton);
    case GalleryKind::tryAgain:
        return !isLoading() && !reader_->texts().isEmpty();
    case GalleryKind::result:
        return reader_->named(resultList);
    }
    return false;
}

bool GalleryStage::isLoading() const {
    bool loads = false;
    forEachItem(*host_->phone(), [&](QQuickItem& item) {
        loads = loads || (qobject_cast<quillet::ProgressIndicatorItem*>(&item) && item.isVisible());
    });
    return loads;
}

bool GalleryStage::isScrolled() const {
    QQuickItem* page = reader_->scrollable();
    return !page || Scroller(*page).toEdge(part_ == GalleryPart::end);
}

} // namespace demo
