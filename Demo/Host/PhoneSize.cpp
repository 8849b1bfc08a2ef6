#include "PhoneSize.hpp"

#include <QRegularExpression>

namespace demo {

std::optional<QSize> parsePhoneSize(const QString& text) {
    // No side has more than four digits, so that none is too large for a number.
    static const QRegularExpression form(QStringLiteral("\\A([0-9]{1,4})x([0-9]{1,4})\\z"));
    const auto match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const auto fits = [](int side) { return side >= leastPhoneSide && side <= mostPhoneSide; };
    return fits(size.width()) && fits(size.height()) ? std::optional(size) : std::nullopt;
}

QString phoneSizeRule() {
    return QStringLiteral("WxH, each from %1 to %2").arg(leastPhoneSide).arg(mostPhoneSide);
}

} // namespace demo
