#include "SaleSummary/Presenters/SaleSummaryPresenter.hpp"

#include "SaleSummary/Presenters/DayFormatter.hpp"

namespace quillet {

Captioned OrderPointsPresenter::captioned() const {
    return {QStringLiteral("Puntos del pedido: "), QString::number(points)};
}

Captioned PointsInProgressPresenter::captioned() const {
    return {QStringLiteral("Puntos en curso: "), QString::number(points)};
}

QString CyclePeriodPresenter::startText() const {
    return QStringLiteral("Inicio: ") + utcDay(startDate);
}

QString CyclePeriodPresenter::endText() const {
    return QStringLiteral("Cierre: ") + utcDay(endDate);
}

} // namespace quillet
