#include "SaleSummary/Presenters/DayFormatter.hpp"

#include <QDateTime>

namespace quillet {

namespace {

QString day(Date moment, Qt::TimeSpec zone) {
    const auto milliseconds = moment.time_since_epoch().count();
    return QDateTime::fromMSecsSinceEpoch(milliseconds, zone).toString(QStringLiteral("dd/MM/yyyy"));
}

} // namespace

QString utcDay(Date moment) {
    return day(moment, Qt::UTC);
}

QString localDay(Date moment) {
    return day(moment, Qt::LocalTime);
}

} // namespace quillet
