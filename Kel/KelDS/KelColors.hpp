#pragma once

#include "KelDS/KelAppearance.hpp"

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kel {

/// Colour tokens for QML, of the theme in force.
class KelColors : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor primary READ primary NOTIFY changed FINAL)
    // "onPrimary" would parse as a signal handler in QML.
    Q_PROPERTY(QColor inkOnPrimary READ inkOnPrimary NOTIFY changed FINAL)
    Q_PROPERTY(QColor inkOnTag READ inkOnTag NOTIFY changed FINAL)
    Q_PROPERTY(QColor background READ background NOTIFY changed FINAL)
    Q_PROPERTY(QColor surface READ surface NOTIFY changed FINAL)
    Q_PROPERTY(QColor highEmphasis READ highEmphasis NOTIFY changed FINAL)
    Q_PROPERTY(QColor mediumEmphasis READ mediumEmphasis NOTIFY changed FINAL)
    Q_PROPERTY(QColor lowEmphasis READ lowEmphasis NOTIFY changed FINAL)
    Q_PROPERTY(QColor success READ success NOTIFY changed FINAL)
    Q_PROPERTY(QColor alert READ alert NOTIFY changed FINAL)
    Q_PROPERTY(QColor warning READ warning NOTIFY changed FINAL)
    Q_PROPERTY(QColor link READ link NOTIFY changed FINAL)
    Q_PROPERTY(QColor primaryEdge READ primaryEdge NOTIFY changed FINAL)
    Q_PROPERTY(QColor edge READ edge NOTIFY changed FINAL)
    Q_PROPERTY(QColor hairline READ hairline NOTIFY changed FINAL)
    Q_PROPERTY(bool hasShadows READ hasShadows NOTIFY changed FINAL)

public:
    explicit KelColors(QObject* parent = nullptr);

    [[nodiscard]] static QColor primary() { return palette().primary; }
    [[nodiscard]] static QColor inkOnPrimary() { return palette().onPrimary; }
    [[nodiscard]] static QColor inkOnTag() { return palette().onTag; }
    [[nodiscard]] static QColor background() { return palette().background; }
    [[nodiscard]] static QColor surface() { return palette().surface; }
    [[nodiscard]] static QColor highEmphasis() { return palette().highEmphasis; }
    [[nodiscard]] static QColor mediumEmphasis() { return palette().mediumEmphasis; }
    [[nodiscard]] static QColor lowEmphasis() { return palette().lowEmphasis; }
    [[nodiscard]] static QColor success() { return palette().success; }
    [[nodiscard]] static QColor alert() { return palette().alert; }
    [[nodiscard]] static QColor warning() { return palette().warning; }
    [[nodiscard]] static QColor link() { return palette().link; }
    [[nodiscard]] static QColor primaryEdge() { return palette().primaryEdge; }
    [[nodiscard]] static QColor edge() { return palette().edge; }
    [[nodiscard]] static QColor veil() { return palette().veil; }
    [[nodiscard]] static QColor hairline() { return withAlpha(highEmphasis(), palette().hairline); }

    [[nodiscard]] static bool hasShadows() { return palette().shadow; }

    [[nodiscard]] Q_INVOKABLE static QColor withAlpha(QColor color, double alpha);
    /// The pale background of a strip or disc in the given colour.
    [[nodiscard]] Q_INVOKABLE static QColor tint(const QColor& color) {
        return withAlpha(color, palette().tint);
    }

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] static const KelPalette& palette() { return KelAppearance::current().palette(); }
};

} // namespace kel
