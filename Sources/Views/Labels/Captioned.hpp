#pragma once

#include <QObject>
#include <QString>

namespace quillet {

/// A label and its value, shown as one text of which only the value is bolder. Absent ones show nothing.
class Captioned {
    Q_GADGET
    Q_PROPERTY(QString caption MEMBER caption CONSTANT FINAL)
    Q_PROPERTY(QString value MEMBER value CONSTANT FINAL)
    Q_PROPERTY(bool present READ isPresent CONSTANT FINAL)

public:
    QString caption;
    QString value;

    /// Splits "Caption: value" behind its first colon, so that presenters stay the one source of such texts;
    /// a text without a colon is a caption alone.
    [[nodiscard]] static Captioned of(const QString& text) {
        const auto colon = text.indexOf(QLatin1String(": "));
        return colon < 0 ? Captioned{text, {}} : Captioned{text.left(colon + 2), text.mid(colon + 2)};
    }

    [[nodiscard]] bool isPresent() const { return !caption.isEmpty(); }
    [[nodiscard]] QString text() const { return caption + value; }
    bool operator==(const Captioned&) const = default;
};

} // namespace quillet
