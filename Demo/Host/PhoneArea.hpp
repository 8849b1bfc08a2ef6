#pragma once

#include "PhoneSize.hpp"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

namespace demo {

/// What Live measures where nothing narrows it, and the least it can be read at.
inline constexpr QSize usualLiveSize{790, 844};
inline constexpr QSize leastLiveSize{520, 720};
/// The strip below the phone-sized area from which a person chooses its size where Live is not shown.
inline constexpr int sizeStripHeight = 48;

/// How a window is divided, and the bounds of its size.
struct WindowLayout {
    /// Live stands beside the phone-sized area; else the area follows the window.
    bool live = false;
    QSize window;
    QSize least;
    QSize most;
};

/// The layout for a phone-sized area of this size. `live` is the size that Live would like to have; it gets
/// less where the desktop is small, and nothing where it could not be read.
[[nodiscard]] WindowLayout windowBesideLive(QSize phone, QSize live, QSize desktop);
/// The layout without Live; `strip` is the height of what stands below the area.
[[nodiscard]] WindowLayout windowWithoutLive(QSize phone, int strip);

/// The phone-sized area of the host's window: what it measures, and whether Live stands beside it. It sizes
/// the window, and learns from the window where a person drags it. Main thread only.
class PhoneArea final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The host makes the one that there is.")
    Q_PROPERTY(int width READ width NOTIFY changed FINAL)
    Q_PROPERTY(int height READ height NOTIFY changed FINAL)
    /// As a person reads it.
    Q_PROPERTY(QString label READ label NOTIFY changed FINAL)
    Q_PROPERTY(bool live READ hasLive NOTIFY changed FINAL)
    /// What `toggleLive` does, for a person; empty where the desktop has no room for Live.
    Q_PROPERTY(QString liveToggle READ liveToggle NOTIFY changed FINAL)
    /// The height of the strip below the area; 0 where there is none.
    Q_PROPERTY(int strip READ strip NOTIFY changed FINAL)
    /// The labels of the sizes that a person chooses from, and the index of the one in force, or -1.
    Q_PROPERTY(QStringList choices READ choices CONSTANT FINAL)
    Q_PROPERTY(int choice READ choice NOTIFY changed FINAL)

public:
    /// `choosable` says whether a person sits at the window; else it shows the area alone.
    PhoneArea(QSize size, bool choosable);

    /// Sizes this window from now on. Its size changes at once where it has not been shown, else as soon as
    /// the window system agrees.
    void arrange(QWindow& window);
    /// The side of the size is within the bounds of a phone's.
    void resize(QSize size);
    Q_INVOKABLE void choose(int index);
    Q_INVOKABLE void toggleLive();

    [[nodiscard]] QSize size() const { return size_; }
    [[nodiscard]] int width() const { return size_.width(); }
    [[nodiscard]] int height() const { return size_.height(); }
    [[nodiscard]] QString label() const;
    [[nodiscard]] bool hasLive() const { return live_; }
    [[nodiscard]] QString liveToggle() const;
    [[nodiscard]] int strip() const { return choosable_ && !live_ ? sizeStripHeight : 0; }
    [[nodiscard]] QStringList choices() const;
    [[nodiscard]] int choice() const;

Q_SIGNALS:
    void changed();

private:
    void arrange();
    /// The window has a new size.
    void follow();
    void setBounds(QSize least, QSize most);
    [[nodiscard]] QSize desktop() const;

    QPointer<QWindow> window_;
    QSize size_;
    QSize liveSize_ = usualLiveSize;
    /// What the window was asked to be, to know it from what a person made of it.
    QSize asked_;
    QSize least_;
    QSize most_;
    bool choosable_;
    bool wantsLive_;
    bool live_ = false;
};

} // namespace demo
