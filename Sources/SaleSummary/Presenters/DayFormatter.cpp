#include "SaleSummary/Presenters/DayFormatter.hpp"

#include <QDateTime>

namespace quillet {

namespace {

// Local time and toUTC() are what every Qt 6 has: Qt 6.8 deprecates Qt::TimeSpec, and Qt 6.4 has nothing in
// its stead.
QDateTime local(Date moment) {
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count());
}

QString day(const QDateTime& moment) {
    return moment.toString(QStringLiteral("dd/MM/yyyy"));
}

} // namespace

QString utcDay(Date moment) {
    return day(local(moment).toUTC());
}

QString localDay(Date moment) {
    return day(local(moment));
}

} // namespace quillet
