#pragma once

#include "SaleSummary/Presenters/SaleSummaryPresenter.hpp"
#include "Views/Labels/CycleLabel.hpp"
#include "Views/Labels/PointsLabel.hpp"

#include <memory>

namespace quillet {

/// The head of the summary: cycle and period, both absent without a cycle, and the points in progress.
class SaleSummaryHeaderView final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of a SaleSummaryView")
    Q_PROPERTY(quillet::Label* cycleLabel READ cycleLabel CONSTANT FINAL)
    Q_PROPERTY(QString cycleStart READ cycleStart CONSTANT FINAL)
    Q_PROPERTY(QString cycleEnd READ cycleEnd CONSTANT FINAL)
    Q_PROPERTY(quillet::Label* pointsInProgressLabel READ pointsInProgressLabel CONSTANT FINAL)

public:
    explicit SaleSummaryHeaderView(const SaleSummaryHeaderPresenter& presenter);

    [[nodiscard]] CycleLabel* cycleLabel() const { return cycleLabel_.get(); }
    [[nodiscard]] QString cycleStart() const { return cyclePeriod_ ? cyclePeriod_->startText() : QString(); }
    [[nodiscard]] QString cycleEnd() const { return cyclePeriod_ ? cyclePeriod_->endText() : QString(); }
    [[nodiscard]] PointsLabel* pointsInProgressLabel() const { return pointsInProgressLabel_.get(); }

private:
    std::unique_ptr<CycleLabel> cycleLabel_;
    std::optional<CyclePeriodPresenter> cyclePeriod_;
    std::unique_ptr<PointsLabel> pointsInProgressLabel_;
};

} // namespace quillet
