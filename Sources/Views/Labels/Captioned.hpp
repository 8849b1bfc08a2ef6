#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace quillet {

/// A caption and its value, shown as one text of which only the value is bolder. Absent ones show nothing.
class Captioned {
    Q_GADGET
    QML_VALUE_TYPE(captioned)
    Q_PROPERTY(QString plainText READ plainText CONSTANT FINAL)
    Q_PROPERTY(QString styledText READ styledText CONSTANT FINAL)

public:
    QString caption;
    QString value;

    [[nodiscard]] QString plainText() const { return caption + value; }
    /// With the mark-up of Text.StyledText. What caption and value hold is not read as mark-up.
    [[nodiscard]] QString styledText() const {
        return value.isEmpty()
                   ? caption.toHtmlEscaped()
                   : QStringLiteral("%1<b>%2</b>").arg(caption.toHtmlEscaped(), value.toHtmlEscaped());
    }
    bool operator==(const Captioned&) const = default;
};

} // namespace quillet
