#pragma once

#include "KelDS/KelAppearance.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kel {

class KelSpacing : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int micro MEMBER micro_ CONSTANT FINAL)
    Q_PROPERTY(int tiny MEMBER tiny_ CONSTANT FINAL)
    Q_PROPERTY(int small MEMBER small_ CONSTANT FINAL)
    Q_PROPERTY(int semi MEMBER semi_ CONSTANT FINAL)
    Q_PROPERTY(int standard MEMBER standard_ CONSTANT FINAL)

    int micro_ = spacing::micro, tiny_ = spacing::tiny, small_ = spacing::small, semi_ = spacing::semi,
        standard_ = spacing::standard;
};

class KelSizes : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int micro MEMBER micro_ CONSTANT FINAL)
    Q_PROPERTY(int tiny MEMBER tiny_ CONSTANT FINAL)
    Q_PROPERTY(int small MEMBER small_ CONSTANT FINAL)
    Q_PROPERTY(int standard MEMBER standard_ CONSTANT FINAL)
    Q_PROPERTY(int semi MEMBER semi_ CONSTANT FINAL)
    Q_PROPERTY(int semiX MEMBER semiX_ CONSTANT FINAL)
    Q_PROPERTY(int medium MEMBER medium_ CONSTANT FINAL)
    Q_PROPERTY(int mediumX MEMBER mediumX_ CONSTANT FINAL)
    Q_PROPERTY(int large MEMBER large_ CONSTANT FINAL)
    Q_PROPERTY(int touch MEMBER touch_ CONSTANT FINAL)

    int micro_ = sizes::micro, tiny_ = sizes::tiny, small_ = sizes::small, standard_ = sizes::standard,
        semi_ = sizes::semi, semiX_ = sizes::semiX, medium_ = sizes::medium, mediumX_ = sizes::mediumX,
        large_ = sizes::large, touch_ = sizes::touch;
};

class KelRadius : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int small MEMBER small_ CONSTANT FINAL)
    Q_PROPERTY(int medium MEMBER medium_ CONSTANT FINAL)
    Q_PROPERTY(int large MEMBER large_ CONSTANT FINAL)
    Q_PROPERTY(int button MEMBER button_ CONSTANT FINAL)

    int small_ = radius::small, medium_ = radius::medium, large_ = radius::large, button_ = radius::button;
};

class KelOpacity : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(double disabled MEMBER disabled_ CONSTANT FINAL)
    Q_PROPERTY(double low MEMBER low_ CONSTANT FINAL)
    Q_PROPERTY(double mediumLow MEMBER mediumLow_ CONSTANT FINAL)
    Q_PROPERTY(double medium MEMBER medium_ CONSTANT FINAL)
    Q_PROPERTY(double mediumHigh MEMBER mediumHigh_ CONSTANT FINAL)
    Q_PROPERTY(double high MEMBER high_ CONSTANT FINAL)

    double disabled_ = opacity::disabled, low_ = opacity::low, mediumLow_ = opacity::mediumLow,
           medium_ = opacity::medium, mediumHigh_ = opacity::mediumHigh, high_ = opacity::high;
};

/// Durations in milliseconds, and whether anything but opacity may move.
class KelMotion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int press MEMBER press_ CONSTANT FINAL)
    Q_PROPERTY(int panel MEMBER panel_ CONSTANT FINAL)
    Q_PROPERTY(int dialogIn MEMBER dialogIn_ CONSTANT FINAL)
    Q_PROPERTY(int dialogOut MEMBER dialogOut_ CONSTANT FINAL)
    Q_PROPERTY(int page MEMBER page_ CONSTANT FINAL)
    Q_PROPERTY(bool reduced READ isReduced NOTIFY changed FINAL)

public:
    explicit KelMotion(QObject* parent = nullptr) : QObject(parent) {
        connect(&KelAppearance::current(), &KelAppearance::changed, this, &KelMotion::changed);
    }
    [[nodiscard]] static bool isReduced() { return KelAppearance::current().hasReducedMotion(); }

Q_SIGNALS:
    void changed();

private:
    int press_ = motion::press, panel_ = motion::panel, dialogIn_ = motion::dialogIn,
        dialogOut_ = motion::dialogOut, page_ = motion::page;
};

} // namespace kel
