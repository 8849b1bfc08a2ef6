#pragma once

#include <QQmlEngine>
#include <QQuickItem>

namespace kel {

void useDesignSystem(QQmlEngine& engine);

struct KelAppearance : QObject {
    Q_OBJECT

public:
    static KelAppearance& current();
    bool hasReducedMotion() const { return true; }
Q_SIGNALS:
    void changed();
};

struct KelDialogController {
    KelDialogController(QString, QString) {}
    static void present(std::unique_ptr<KelDialogController>, QQmlEngine&, QQuickItem&, bool) {}
};

#define KEL_SINGLETON                                                                                        \
    Q_OBJECT                                                                                                 \
    QML_ELEMENT                                                                                              \
    QML_SINGLETON                                                                                            \
public:
#define KEL_NUMBER(name, number)                                                                             \
    Q_PROPERTY(double name MEMBER name CONSTANT)                                                             \
    static constexpr double name = number;
#define KEL_COLOR(name, rgb)                                                                                 \
    Q_PROPERTY(QColor name READ name CONSTANT)                                                               \
    static QColor name() {                                                                                   \
        return QColor(QRgb(rgb));                                                                            \
    }

struct KelColors : QObject {
    KEL_SINGLETON
    KEL_COLOR(primary, 0x2040c0)
    KEL_COLOR(inkOnPrimary, 0xffffff)
    KEL_COLOR(background, 0xeeeeee)
    KEL_COLOR(surface, 0xffffff)
    KEL_COLOR(highEmphasis, 0x000000)
    KEL_COLOR(mediumEmphasis, 0x444444)
    KEL_COLOR(lowEmphasis, 0x888888)
    KEL_COLOR(success, 0x006000)
    KEL_COLOR(alert, 0xa00000)
    KEL_COLOR(warning, 0x806000)
    KEL_COLOR(edge, 0x444444)
    KEL_COLOR(veil, 0x000000)
    static QColor withAlpha(QColor c, double alpha) {
        return QColor(c.red(), c.green(), c.blue(), int(255 * alpha));
    }
    Q_INVOKABLE static QColor tint(const QColor& color) { return withAlpha(color, 0.2); }
};
// One scale for all measures.
struct KelMeasures : QObject {
    Q_OBJECT

public:
    KEL_NUMBER(micro, 2)
    KEL_NUMBER(tiny, 6)
    KEL_NUMBER(small, 10)
    KEL_NUMBER(standard, 20)
    KEL_NUMBER(semi, 30)
    KEL_NUMBER(semiX, 36)
    KEL_NUMBER(medium, 44)
    KEL_NUMBER(mediumX, 50)
    KEL_NUMBER(large, 60)
    KEL_NUMBER(touch, 44)
    KEL_NUMBER(dialog, 400)
    KEL_NUMBER(column, 600)
    KEL_NUMBER(wide, 800)
};
struct KelSpacing : kel::KelMeasures {
    KEL_SINGLETON
};
struct KelSizes : kel::KelMeasures {
    KEL_SINGLETON
};
struct KelBorderRadius : kel::KelMeasures {
    KEL_SINGLETON
};
struct KelOpacity {
    static constexpr double mediumHigh = 0.7;
};
struct KelMotion : QObject {
    KEL_SINGLETON
    KEL_NUMBER(dialogIn, 0)
    KEL_NUMBER(press, 0)
    static constexpr int panel = 0;
    Q_PROPERTY(bool reduced MEMBER reduced CONSTANT)
    static constexpr bool reduced = true;
};
struct KelFonts : QObject {
    KEL_SINGLETON
    enum Size { Headline5, Headline6, Subtitle1, Subtitle2, Caption };
    Q_ENUM(Size)
    enum Weight { Regular = QFont::Normal, Medium = QFont::Medium, Bold = QFont::Bold };
    Q_ENUM(Weight)
    Q_PROPERTY(double scale MEMBER scale CONSTANT)
    static constexpr double scale = 1;
    static QFont font(int size, int weight) { return scaled(size, weight, 1); }
    Q_INVOKABLE static QFont scaled(int size, int weight, double scale) {
        return QFont("sans", int(scale * (14 - size)), weight);
    }
};
struct KelIcons : QObject {
    KEL_SINGLETON
    enum Number { Calendar = 10, Schedule, Close, LocalMall };
    Q_ENUM(Number)
};
namespace KelTagColor {
Q_NAMESPACE
QML_ELEMENT
enum Color { Primary, Success, Alert };
Q_ENUM_NS(Color)
} // namespace KelTagColor

} // namespace kel
