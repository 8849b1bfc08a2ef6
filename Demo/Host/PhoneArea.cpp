#include "PhoneArea.hpp"

#include <QScreen>

#include <algorithm>

namespace demo {

namespace {

QString labelOf(QSize size) {
    return QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
}

constexpr QSize unbounded{16'777'215, 16'777'215};

} // namespace

WindowLayout windowBesideLive(QSize phone, QSize live, QSize desktop) {
    const int room = desktop.width() - phone.width();
    if (room < leastLiveSize.width()) {
        return {};
    }
    const int width = std::clamp(live.width(), leastLiveSize.width(), room);
    const int height = std::max(leastLiveSize.height(), std::min(live.height(), desktop.height()));
    return {.live = true,
            .window = {phone.width() + width, std::max(phone.height(), height)},
            .least = {phone.width() + leastLiveSize.width(), leastLiveSize.height()},
            .most = unbounded};
}

WindowLayout windowWithoutLive(QSize phone, int strip) {
    const auto withStrip = [strip](QSize size) { return QSize(size.width(), size.height() + strip); };
    return {.live = false,
            .window = withStrip(phone),
            .least = withStrip({leastPhoneSide, leastPhoneSide}),
            .most = withStrip({mostPhoneSide, mostPhoneSide})};
}

PhoneArea::PhoneArea(QSize size, bool choosable)
    : size_(size), choosable_(choosable), wantsLive_(choosable) {}

void PhoneArea::arrange(QWindow& window) {
    window_ = &window;
    connect(&window, &QWindow::widthChanged, this, &PhoneArea::follow);
    connect(&window, &QWindow::heightChanged, this, &PhoneArea::follow);
    arrange();
}

void PhoneArea::resize(QSize size) {
    size_ = size;
    arrange();
}

void PhoneArea::choose(int index) {
    resize(phoneSizes.at(static_cast<std::size_t>(index)));
}

void PhoneArea::toggleLive() {
    wantsLive_ = !live_;
    arrange();
}

QString PhoneArea::label() const {
    return labelOf(size_);
}

QString PhoneArea::liveToggle() const {
    if (live_) {
        return QStringLiteral("Hide Live");
    }
    return windowBesideLive(size_, liveSize_, desktop()).live ? QStringLiteral("Show Live") : QString();
}

QStringList PhoneArea::choices() const {
    QStringList labels;
    for (const QSize size : phoneSizes) {
        labels << labelOf(size);
    }
    return labels;
}

int PhoneArea::choice() const {
    const auto found = std::ranges::find(phoneSizes, size_);
    return found == phoneSizes.end() ? -1 : int(found - phoneSizes.begin());
}

void PhoneArea::arrange() {
    WindowLayout layout;
    if (wantsLive_) {
        layout = windowBesideLive(size_, liveSize_, desktop());
    }
    live_ = layout.live;
    if (!live_) {
        layout = windowWithoutLive(size_, strip());
    }
    asked_ = layout.window;
    Q_EMIT changed();
    if (!window_) {
        return;
    }
    // A bound that the window's old size breaks would size the window too, and to something else. So the
    // bounds wait until the window has its new size, which some window systems take their time for.
    setBounds({}, unbounded);
    least_ = layout.least;
    most_ = layout.most;
    window_->resize(asked_);
    if (window_->size() == asked_) {
        setBounds(least_, most_);
    }
}

void PhoneArea::follow() {
    const QSize window = window_->size();
    if (window != asked_) {
        asked_ = window;
        if (live_) {
            liveSize_ = {window.width() - size_.width(), window.height()};
            size_.setHeight(std::min(size_.height(), window.height()));
        } else {
            size_ = {window.width(), window.height() - strip()};
        }
        Q_EMIT changed();
    }
    setBounds(least_, most_);
}

void PhoneArea::setBounds(QSize least, QSize most) {
    // Nobody drags the window of a play, and Qt's offscreen windows warn that they have no bounds.
    if (choosable_) {
        window_->setMinimumSize(least);
        window_->setMaximumSize(most);
    }
}

QSize PhoneArea::desktop() const {
    return window_ && window_->screen() ? window_->screen()->availableSize() : QSize();
}

} // namespace demo
