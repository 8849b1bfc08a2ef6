#pragma once

#include "Platform/Screens/QueuedTap.hpp"
#include "SaleSummary/Screen/HighlightedOrderView.hpp"
#include "SaleSummary/Screen/SaleSummaryHeaderView.hpp"
#include "SaleSummary/Screen/SaleSummaryScreen.hpp"
#include "Views/Labels/RememberLabel.hpp"
#include "Views/Tokens/ButtonCreating.hpp"
#include "Views/Tokens/Coloring.hpp"
#include "Views/Tokens/Sizing.hpp"
#include "Views/Tokens/Spacing.hpp"

namespace quillet {

/// The summary content: tab, head, order card, reminder and button, as SaleSummaryView.qml draws them.
class SaleSummaryView final : public quillet::SaleSummaryScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by a SaleSummaryViewFactory")
    Q_PROPERTY(QString inProgressTab READ inProgressTab CONSTANT FINAL)
    Q_PROPERTY(quillet::SaleSummaryHeaderView* headerView READ headerView CONSTANT FINAL)
    Q_PROPERTY(quillet::HighlightedOrderView* highlightedOrderView READ highlightedOrderView CONSTANT FINAL)
    Q_PROPERTY(quillet::RememberLabel rememberLabel READ rememberLabel NOTIFY themeChanged FINAL)
    Q_PROPERTY(quillet::Button sendProductsButton READ sendProductsButton CONSTANT FINAL)

public:
    SaleSummaryView(std::unique_ptr<ButtonCreating> buttonFactory, std::unique_ptr<Spacing> spacing,
                    std::unique_ptr<Sizing> sizing, std::unique_ptr<Coloring> colors,
                    SaleSummaryPresenter presenter);

    [[nodiscard]] const SaleSummaryPresenter& presenter() const override { return presenter_; }
    void setDelegate(std::weak_ptr<SaleSummaryViewDelegate> delegate) override;
    [[nodiscard]] std::shared_ptr<SaleSummaryViewDelegate> delegate() const { return delegate_.lock(); }

    [[nodiscard]] QString inProgressTab() const { return QStringLiteral("En Curso"); }
    [[nodiscard]] SaleSummaryHeaderView* headerView() { return &headerView_; }
    [[nodiscard]] HighlightedOrderView* highlightedOrderView() { return &highlightedOrderView_; }
    [[nodiscard]] RememberLabel rememberLabel() const { return RememberLabel::in(*colors_); }
    [[nodiscard]] Button sendProductsButton() const;

    Q_INVOKABLE void tapSendProducts();

private:
    std::weak_ptr<SaleSummaryViewDelegate> delegate_;
    std::unique_ptr<ButtonCreating> buttonFactory_;
    // Passed in by the factory but not used: the QML that lays out the view reads these tokens from the
    // design system.
    std::unique_ptr<Spacing> spacing_;
    std::unique_ptr<Sizing> sizing_;
    std::unique_ptr<Coloring> colors_;
    SaleSummaryPresenter presenter_;
    SaleSummaryHeaderView headerView_;
    HighlightedOrderView highlightedOrderView_;
    platform::QueuedTap send_;
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
        return std::make_unique<SaleSummaryView>(std::make_unique<ButtonFactory>(),
                                                 std::make_unique<Spacer>(), std::make_unique<Sizer>(),
                                                 std::make_unique<Colors>(), std::move(presenter));
    }
};

} // namespace quillet
