#include "Checkout/Status/ShippingStatusProductsView.hpp"

#include "KelDS/KelAppearance.hpp"
#include "Support/HandDrivenAnimating.hpp"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

namespace quillet::testing {

namespace {

using Role = ShippingStatusProductsView::Role;

/// The list's rows, one letter each: head open (o) or closed (c), product (p), moving product (m). A capital
/// marks the last row of a section, which is the head where no products are below it.
std::string shape(const ShippingStatusProductsView& view) {
    std::string rows;
    for (int row = 0; row < view.rowCount(); ++row) {
        const QModelIndex index = view.index(row);
        const bool last = index.data(Role::LastRole).toBool();
        const char letter = index.data(Role::MovingRole).toBool()     ? 'm'
                            : !index.data(Role::IsHeadRole).toBool()  ? 'p'
                            : index.data(Role::ExpandedRole).toBool() ? 'o'
                                                                      : 'c';
        rows += last ? static_cast<char>(std::toupper(letter)) : letter;
    }
    return rows;
}

struct Sections : ::testing::Test {
    /// A list of so many products in each section, with a tester that aborts at the first signal that
    /// contradicts the rows.
    ShippingStatusProductsView& show(std::size_t sent, std::optional<std::size_t> notSent) {
        auto products = std::make_shared<std::vector<Product>>(sent + notSent.value_or(0));
        for (std::size_t i = sent; i < products->size(); ++i) {
            (*products)[i].status = ProductErrorStatus::unavailable;
        }
        std::optional<ExpansionPanel> refused;
        if (notSent) {
            refused = ProductsViewFactory::unshippedProductsView({products, ProductList::Kind::notAdded});
        }
        tester.reset();
        view = std::make_unique<ShippingStatusProductsView>(
            ProductsViewFactory::shippedProductsView({products, ProductList::Kind::added}), refused,
            animating);
        tester = std::make_unique<QAbstractItemModelTester>(
            view.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        view->setup();
        animating->running.clear();
        return *view;
    }

    std::shared_ptr<HandDrivenAnimating> animating = std::make_shared<HandDrivenAnimating>();
    std::unique_ptr<ShippingStatusProductsView> view;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

} // namespace

TEST_F(Sections, ShowWhatIsAboveTheCutWhileTheyMove) {
    auto& list = show(3, 1);
    list.toggle(0, 3);
    for (const auto& [row, height] : {std::pair(1, 80), {2, 100}, {3, 120}, {0, 7}, {5, 7}}) {
        list.reportHeight(row, height);
    }
    const struct {
        double share;
        std::vector<double> heights;
    } cases[] = {{1, {0, 80, 100, 120, 0, 0}}, {0.5, {0, 80, 70, 0, 0, 0}}, {0, {0, 0, 0, 0, 0, 0}}};
    for (const auto& [share, heights] : cases) {
        for (int row = 0; row < list.rowCount(); ++row) {
            EXPECT_EQ(list.shownHeight(row, share), heights.at(static_cast<std::size_t>(row))) << row;
        }
    }
    // The next section to move does not reuse these heights.
    animating->running[0].finish();
    list.toggle(1, 1);
    list.reportHeight(2, 80);
    EXPECT_EQ(list.shownHeight(2, 0.5), 40);
}

TEST_F(Sections, MoveTheRowsInViewAndTurnRoundOrComeToRestAtTheNextTap) {
    enum Act { tap, move };
    struct Step {
        Act act;
        /// The row that is tapped, or which of the moves goes on.
        int index;
        std::string shape;
        /// How many rows there is room for, or how far the move is.
        double share = 1;
        double reveal = 1;
    };
    const struct {
        std::size_t sent;
        std::optional<std::size_t> notSent;
        std::vector<Step> steps;
        bool reducesMotion = false;
    } cases[] = {
        {5,
         2,
         {{tap, 0, "cmMopP", 2},
          {move, 0, "cmMopP", 0.5, 0.125},
          {move, 0, "CopP"},
          {tap, 0, "ommMopP", 3, 0},
          {move, 1, "ommMopP", 0.5, 0.875},
          {move, 1, "oppppPopP"}}},
        {3,
         2,
         {{tap, 0, "cmMopP", 2},
          {move, 0, "cmMopP", 0.5, 0.125},
          {tap, 0, "omMopP", 2, 0.125},
          {move, 0, "omMopP", 1, 0.125},
          {move, 1, "omMopP", 0.5, 0.125 + 0.875 * 0.875},
          {move, 1, "oppPopP"}}},
        // The row of the lower section's head at this moment.
        {3, 2, {{tap, 0, "cmMopP", 2}, {tap, 3, "CcM"}, {move, 0, "CcM"}, {move, 1, "CC"}}},
        {2,
         1,
         {{tap, 1, "opPoP"}, {tap, 5, "opPoP"}, {tap, 0, "CoP"}, {tap, 1, "CC"}, {tap, 0, "opPC"}},
         true},
        {0, 0, {{tap, -1, "OO"}, {tap, 1, "OC"}, {tap, 0, "CC"}}, true},
        {1, std::nullopt, {{tap, 0, "C"}, {tap, 0, "oP"}}, true},
    };
    for (const auto& [sent, notSent, steps, reducesMotion] : cases) {
        kel::KelAppearance::current().setReducedMotion(reducesMotion);
        show(sent, notSent);
        for (const auto& [act, index, rows, share, reveal] : steps) {
            if (act == tap) {
                view->toggle(index, static_cast<int>(share));
            } else if (share < 1) {
                animating->running.at(static_cast<std::size_t>(index)).step(share);
            } else {
                animating->running.at(static_cast<std::size_t>(index)).finish();
            }
            EXPECT_EQ(shape(*view), rows);
            EXPECT_DOUBLE_EQ(view->reveal(), reveal) << rows;
        }
        EXPECT_EQ(animating->running.empty(), reducesMotion);
    }
    kel::KelAppearance::current().setReducedMotion(false);
    show(3, 2).toggle(0, 2);
    EXPECT_EQ(animating->running.back().duration, std::chrono::milliseconds(200));
    tester.reset();
    view.reset();
    animating->running.back().finish();
}

} // namespace quillet::testing
