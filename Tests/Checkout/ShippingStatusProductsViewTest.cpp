#include "Checkout/Status/ShippingStatusProductsView.hpp"

#include "KelDS/KelAppearance.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "Support/HandDrivenAnimating.hpp"

#include <QAbstractItemModelTester>

#include <gmock/gmock.h>

#include <limits>

namespace quillet::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Role = ShippingStatusProductsView::Role;

class FakeDelegate final : public ShippingStatusProductsViewDelegate {
public:
    explicit FakeDelegate(Log log) : log_(std::move(log)) {}
    void didExpandProductsSent() override { log_->push_back("sent expanded"); }
    void didHideProductsSent() override { log_->push_back("sent hidden"); }
    void didExpandProductsNotSent() override { log_->push_back("not sent expanded"); }
    void didHideProductsNotSent() override { log_->push_back("not sent hidden"); }

private:
    Log log_;
};

std::optional<ExpansionPanel> sent(std::size_t count) {
    return ProductsViewFactory::shippedProductsView(
        {std::make_shared<const std::vector<Product>>(count), ProductList::Kind::added});
}

std::optional<ExpansionPanel> notSent(std::size_t count) {
    Product product;
    product.status = ProductErrorStatus::unavailable;
    return ProductsViewFactory::unshippedProductsView(
        {std::make_shared<const std::vector<Product>>(count, product), ProductList::Kind::notAdded});
}

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

    /// A list of these sections, with a tester that aborts at the first signal that contradicts the rows.
    ShippingStatusProductsView& show(std::optional<ExpansionPanel> shipped,
                                     std::optional<ExpansionPanel> unshipped) {
        tester.reset();
        view =
            std::make_unique<ShippingStatusProductsView>(std::move(shipped), std::move(unshipped), animating);
        view->setDelegate(delegate);
        tester = std::make_unique<QAbstractItemModelTester>(
            view.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        view->setup();
        return *view;
    }

    static constexpr int room = 100;
    Log log = makeLog();
    std::shared_ptr<FakeDelegate> delegate = std::make_shared<FakeDelegate>(log);
    std::shared_ptr<HandDrivenAnimating> animating = std::make_shared<HandDrivenAnimating>();
    std::unique_ptr<ShippingStatusProductsView> view;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

} // namespace

TEST_F(Sections, OpenAndCloseAtOnceWithReducedMotionAndTellOncePerTap) {
    kel::KelAppearance::current().setReducedMotion(true);
    const struct {
        std::optional<ExpansionPanel> sent;
        std::optional<ExpansionPanel> notSent;
        std::string atFirst;
        std::vector<std::tuple<int, std::string, std::string>> taps;
    } cases[] = {
        {sent(2),
         notSent(1),
         "opPoP",
         {{0, "sent hidden", "CoP"},
          {1, "not sent hidden", "CC"},
          {0, "sent expanded", "opPC"},
          {3, "not sent expanded", "opPoP"}}},
        {sent(0), notSent(0), "OO", {{1, "not sent hidden", "OC"}, {0, "sent hidden", "CC"}}},
        {std::nullopt, notSent(1), "oP", {{0, "not sent hidden", "C"}, {0, "not sent expanded", "oP"}}},
        {sent(1), std::nullopt, "oP", {{0, "sent hidden", "C"}}},
        {std::nullopt, std::nullopt, "", {}},
    };
    for (const auto& [sentPanel, notSentPanel, atFirst, taps] : cases) {
        auto& list = show(sentPanel, notSentPanel);
        EXPECT_EQ(shape(list), atFirst);
        for (const auto& [row, notice, afterwards] : taps) {
            list.toggle(row, room);
            EXPECT_THAT(taken(log), ElementsAre(notice));
            EXPECT_EQ(shape(list), afterwards);
        }
        EXPECT_TRUE(animating->running.empty());
    }
}

TEST_F(Sections, ShowWhatIsAboveTheCutWhileTheyMove) {
    auto& list = show(sent(3), notSent(1));
    int changes = 0;
    QObject::connect(&list, &ShippingStatusProductsView::revealChanged, [&] { ++changes; });
    list.reportHeight(1, 80);
    EXPECT_EQ(changes, 0);
    list.toggle(0, 3);
    EXPECT_EQ(list.shownHeight(1, 1), 0);
    list.reportHeight(1, 80);
    list.reportHeight(2, 100);
    list.reportHeight(3, 120);
    list.reportHeight(3, 120);
    // The head and the rows of the other section do not move.
    for (const int row : {-1, 0, 4, 5}) {
        list.reportHeight(row, 7);
        EXPECT_EQ(list.shownHeight(row, 1), 0);
    }
    EXPECT_EQ(changes, 3);
    const struct {
        double share, first, second, third;
    } cases[] = {{1, 80, 100, 120}, {0.5, 80, 70, 0}, {0, 0, 0, 0}};
    for (const auto& [share, first, second, third] : cases) {
        EXPECT_DOUBLE_EQ(list.shownHeight(1, share), first);
        EXPECT_DOUBLE_EQ(list.shownHeight(2, share), second);
        EXPECT_DOUBLE_EQ(list.shownHeight(3, share), third);
    }
    // The next section to move does not reuse these heights.
    animating->running[0].finish();
    list.toggle(1, 1);
    list.reportHeight(2, 80);
    EXPECT_DOUBLE_EQ(list.shownHeight(2, 0.5), 40);
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
        auto& list = show(sent(products), notSent(2));
        animating->running.clear();
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

TEST_F(Sections, IgnoreTapsBesideTheHeadsAndADelegateThatHasGone) {
    auto& list = show(sent(2), notSent(1));
    for (const int row : {-1, 1, 2, 4, 5, std::numeric_limits<int>::max()}) {
        list.toggle(row, room);
    }
    EXPECT_EQ(shape(list), "opPoP");
    delegate.reset();
    list.toggle(0, -1);
    animating->running[0].finish();
    EXPECT_EQ(shape(list), "CoP");
    EXPECT_THAT(taken(log), IsEmpty());
}

} // namespace quillet::testing
