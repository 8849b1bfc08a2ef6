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
    ~Sections() override { kel::KelAppearance::current().setReducedMotion(false); }

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

TEST_F(Sections, OpenAndCloseAtOnceWithReducedMotion) {
    kel::KelAppearance::current().setReducedMotion(true);
    const struct {
        std::size_t sent;
        std::optional<std::size_t> notSent;
        std::vector<std::pair<int, std::string>> taps;
    } cases[] = {
        {2, 1, {{1, "opPoP"}, {5, "opPoP"}, {0, "CoP"}, {1, "CC"}, {0, "opPC"}, {3, "opPoP"}}},
        {0, 0, {{-1, "OO"}, {1, "OC"}, {0, "CC"}}},
        {1, std::nullopt, {{0, "C"}, {0, "oP"}}},
    };
    for (const auto& [sent, notSent, taps] : cases) {
        auto& list = show(sent, notSent);
        for (const auto& [row, afterwards] : taps) {
            list.toggle(row, 100);
            EXPECT_EQ(shape(list), afterwards);
        }
        EXPECT_TRUE(animating->running.empty());
    }
}

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
    enum Act { tap, move, finish };
    struct Step {
        Act act;
        /// The row that is tapped, or which of the moves goes on.
        std::size_t index;
        /// How many rows there is room for, or how far the move is.
        double share;
        std::string shape;
        double reveal;
    };
    const std::pair<std::size_t, std::vector<Step>> cases[] = {
        {5,
         {{tap, 0, 2, "cmMopP", 1},
          {move, 0, 0.5, "cmMopP", 0.125},
          {finish, 0, 1, "CopP", 1},
          {tap, 0, 3, "ommMopP", 0},
          {move, 1, 0.5, "ommMopP", 0.875},
          {finish, 1, 1, "oppppPopP", 1}}},
        {3,
         {{tap, 0, 2, "cmMopP", 1},
          {move, 0, 0.5, "cmMopP", 0.125},
          {tap, 0, 2, "omMopP", 0.125},
          {finish, 0, 1, "omMopP", 0.125},
          {move, 1, 0.5, "omMopP", 0.125 + 0.875 * 0.875},
          {finish, 1, 1, "oppPopP", 1}}},
        // The row of the lower section's head at this moment.
        {3,
         {{tap, 0, 2, "cmMopP", 1},
          {tap, 3, 1, "CcM", 1},
          {finish, 0, 1, "CcM", 1},
          {finish, 1, 1, "CC", 1}}},
    };
    for (const auto& [products, steps] : cases) {
        auto& list = show(products, 2);
        for (const auto& [act, index, share, rows, reveal] : steps) {
            if (act == tap) {
                list.toggle(static_cast<int>(index), static_cast<int>(share));
                EXPECT_EQ(animating->running.back().duration, std::chrono::milliseconds(200));
            } else {
                animating->running[index].step(share);
            }
            if (act == finish) {
                animating->running[index].completion();
            }
            EXPECT_EQ(shape(list), rows);
            EXPECT_DOUBLE_EQ(list.reveal(), reveal) << rows;
        }
    }
    view->toggle(0, 2);
    tester.reset();
    view.reset();
    animating->running.back().finish();
}

} // namespace quillet::testing
