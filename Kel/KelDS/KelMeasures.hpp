#pragma once

#include "KelDS/KelAppearance.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <algorithm>

namespace kel {

/// Distances between things, in device-independent pixels.
class KelSpacing : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int micro MEMBER micro CONSTANT FINAL)
    Q_PROPERTY(int tiny MEMBER tiny CONSTANT FINAL)
    Q_PROPERTY(int small MEMBER small CONSTANT FINAL)
    Q_PROPERTY(int semi MEMBER semi CONSTANT FINAL)
    Q_PROPERTY(int standard MEMBER standard CONSTANT FINAL)

public:
    static constexpr int micro = 4;
    static constexpr int tiny = 8;
    static constexpr int small = 16;
    static constexpr int semi = 24;
    static constexpr int standard = 32;
};

/// Sizes of things, in device-independent pixels. `touch` is the least that a finger hits without fail. Of
/// greatest widths, `column` is that of a column of text and cards, and `dialog` that of a dialog or a
/// button. `wide` is the width from which a page has two columns.
class KelSizes : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int micro MEMBER micro CONSTANT FINAL)
    Q_PROPERTY(int tiny MEMBER tiny CONSTANT FINAL)
    Q_PROPERTY(int small MEMBER small CONSTANT FINAL)
    Q_PROPERTY(int standard MEMBER standard CONSTANT FINAL)
    Q_PROPERTY(int semi MEMBER semi CONSTANT FINAL)
    Q_PROPERTY(int semiX MEMBER semiX CONSTANT FINAL)
    Q_PROPERTY(int medium MEMBER medium CONSTANT FINAL)
    Q_PROPERTY(int mediumX MEMBER mediumX CONSTANT FINAL)
    Q_PROPERTY(int large MEMBER large CONSTANT FINAL)
    Q_PROPERTY(int touch MEMBER touch CONSTANT FINAL)
    Q_PROPERTY(int dialog MEMBER dialog CONSTANT FINAL)
    Q_PROPERTY(int column MEMBER column CONSTANT FINAL)
    Q_PROPERTY(int wide MEMBER wide CONSTANT FINAL)

public:
    static constexpr int micro = 4;
    static constexpr int tiny = 8;
    static constexpr int small = 16;
    static constexpr int standard = 24;
    static constexpr int semi = 32;
    static constexpr int semiX = 40;
    static constexpr int medium = 48;
    static constexpr int mediumX = 56;
    static constexpr int large = 64;
    static constexpr int touch = 44;
    static constexpr int dialog = 480;
    static constexpr int column = 640;
    static constexpr int wide = 840;
};

/// Radii of corners, in device-independent pixels. Buttons sit between two steps of the scale.
class KelBorderRadius : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int small MEMBER small CONSTANT FINAL)
    Q_PROPERTY(int medium MEMBER medium CONSTANT FINAL)
    Q_PROPERTY(int large MEMBER large CONSTANT FINAL)
    Q_PROPERTY(int button MEMBER button CONSTANT FINAL)

public:
    static constexpr int small = 4;
    static constexpr int medium = 8;
    static constexpr int large = 16;
    static constexpr int button = 12;
};

/// Opacities, from 0 to 1.
class KelOpacity : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(double disabled MEMBER disabled CONSTANT FINAL)
    Q_PROPERTY(double low MEMBER low CONSTANT FINAL)
    Q_PROPERTY(double mediumLow MEMBER mediumLow CONSTANT FINAL)
    Q_PROPERTY(double medium MEMBER medium CONSTANT FINAL)
    Q_PROPERTY(double mediumHigh MEMBER mediumHigh CONSTANT FINAL)
    Q_PROPERTY(double high MEMBER high CONSTANT FINAL)

public:
    static constexpr double disabled = 0.12;
    static constexpr double low = 0.16;
    static constexpr double mediumLow = 0.32;
    static constexpr double medium = 0.56;
    static constexpr double mediumHigh = 0.80;
    static constexpr double high = 0.92;
};

/// How long things take to move, in milliseconds, and whether anything but opacity may. With reduced motion
/// nothing takes longer than `reducedLongest`.
class KelMotion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int press READ pressNow NOTIFY changed FINAL)
    Q_PROPERTY(int panel READ panelNow NOTIFY changed FINAL)
    Q_PROPERTY(int dialogIn READ dialogInNow NOTIFY changed FINAL)
    Q_PROPERTY(int dialogOut READ dialogOutNow NOTIFY changed FINAL)
    Q_PROPERTY(int page READ pageNow NOTIFY changed FINAL)
    Q_PROPERTY(bool reduced READ isReduced NOTIFY changed FINAL)

public:
    static constexpr int press = 80;
    static constexpr int panel = 200;
    static constexpr int dialogIn = 200;
    static constexpr int dialogOut = 700;
    static constexpr int page = 300;
    static constexpr int reducedLongest = 150;

    explicit KelMotion(QObject* parent = nullptr) : QObject(parent) {
        connect(&KelAppearance::current(), &KelAppearance::changed, this, &KelMotion::changed);
    }
    [[nodiscard]] static bool isReduced() { return KelAppearance::current().hasReducedMotion(); }
    [[nodiscard]] static int pressNow() { return now(press); }
    [[nodiscard]] static int panelNow() { return now(panel); }
    [[nodiscard]] static int dialogInNow() { return now(dialogIn); }
    [[nodiscard]] static int dialogOutNow() { return now(dialogOut); }
    [[nodiscard]] static int pageNow() { return now(page); }

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] static int now(int usual) { return isReduced() ? std::min(usual, reducedLongest) : usual; }
};

} // namespace kel
