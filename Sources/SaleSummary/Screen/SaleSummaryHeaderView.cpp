#include "SaleSummary/Screen/SaleSummaryHeaderView.hpp"

namespace quillet {

SaleSummaryHeaderView::SaleSummaryHeaderView(const SaleSummaryHeaderPresenter& presenter)
    : pointsInProgressLabel_(
          std::make_unique<PointsLabel>(presenter.pointsInProgressPresenter, kel::KelFonts::Headline6)) {
    if (const auto& cycle = presenter.cycle) {
        cycleLabel_ = std::make_unique<CycleLabel>(QString::fromStdString(Cycle::onlyCode(*cycle)));
        cyclePeriod_ = {cycle->startDate, cycle->endDate};
    }
}

} // namespace quillet
