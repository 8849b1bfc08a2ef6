#pragma once

#include "SaleSummary/Screen/SaleSummaryScreen.hpp"
#include "Views/Labels/Captioned.hpp"

namespace quillet {

/// The summary content: each text that SaleSummaryView.qml draws. An absent cycle leaves its texts empty.
class SaleSummaryView final : public SaleSummaryScreen {
    Q_OBJECT
    Q_PROPERTY(QString tabTitle READ tabTitle CONSTANT FINAL)
    Q_PROPERTY(quillet::Captioned cycle READ cycle CONSTANT FINAL)
    Q_PROPERTY(QString cycleStart READ cycleStart CONSTANT FINAL)
    Q_PROPERTY(QString cycleEnd READ cycleEnd CONSTANT FINAL)
    Q_PROPERTY(quillet::Captioned pointsInProgress READ pointsInProgress CONSTANT FINAL)
    Q_PROPERTY(QString orderTitle READ orderTitle CONSTANT FINAL)
    Q_PROPERTY(quillet::Captioned orderCycle READ orderCycle CONSTANT FINAL)
    Q_PROPERTY(QString orderDate READ orderDate CONSTANT FINAL)
    Q_PROPERTY(quillet::Captioned totalOfProducts READ totalOfProducts CONSTANT FINAL)
    Q_PROPERTY(quillet::Captioned orderPoints READ orderPoints CONSTANT FINAL)
    Q_PROPERTY(QString remember READ remember CONSTANT FINAL)
    Q_PROPERTY(QString reminder READ reminder CONSTANT FINAL)
    Q_PROPERTY(QString sendProducts READ sendProducts CONSTANT FINAL)
    Q_PROPERTY(QString sendProductsIdentifier READ sendProductsIdentifier CONSTANT FINAL)

public:
    explicit SaleSummaryView(SaleSummaryPresenter presenter);

    [[nodiscard]] const SaleSummaryPresenter& presenter() const override { return presenter_; }
    void setDelegate(std::weak_ptr<SaleSummaryViewDelegate> delegate) override;

    [[nodiscard]] QString tabTitle() const;
    [[nodiscard]] Captioned cycle() const;
    [[nodiscard]] QString cycleStart() const;
    [[nodiscard]] QString cycleEnd() const;
    [[nodiscard]] Captioned pointsInProgress() const;
    [[nodiscard]] QString orderTitle() const;
    [[nodiscard]] Captioned orderCycle() const;
    [[nodiscard]] QString orderDate() const;
    [[nodiscard]] Captioned totalOfProducts() const;
    [[nodiscard]] Captioned orderPoints() const;
    [[nodiscard]] QString remember() const;
    [[nodiscard]] QString reminder() const;
    [[nodiscard]] QString sendProducts() const;
    [[nodiscard]] QString sendProductsIdentifier() const;

    Q_INVOKABLE void tapSendProducts();

private:
    SaleSummaryPresenter presenter_;
    std::weak_ptr<SaleSummaryViewDelegate> delegate_;
};

/// Builds the summary content.
class SaleSummaryViewCreating {
public:
    virtual ~SaleSummaryViewCreating() = default;
    [[nodiscard]] virtual std::unique_ptr<SaleSummaryScreen> create(SaleSummaryPresenter presenter) const = 0;
};

class SaleSummaryViewFactory final : public SaleSummaryViewCreating {
public:
    [[nodiscard]] std::unique_ptr<SaleSummaryScreen> create(SaleSummaryPresenter presenter) const override {
        return std::make_unique<SaleSummaryView>(std::move(presenter));
    }
};

} // namespace quillet
