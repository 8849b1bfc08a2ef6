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

TEST_F(Sections, MoveOnlyTheRowsThatAreInView) {
    auto& list = show(sent(5), notSent(1));
    list.toggle(0, 2);
    EXPECT_EQ(shape(list), "cmMoP");
    EXPECT_THAT(taken(log), ElementsAre("sent hidden"));
    ASSERT_EQ(animating->running.size(), 1u);
    EXPECT_EQ(animating->running[0].duration, std::chrono::milliseconds(200));
    EXPECT_EQ(list.reveal(), 1);
    animating->running[0].step(0.5);
    EXPECT_DOUBLE_EQ(list.reveal(), 0.125);
    animating->running[0].finish();
    EXPECT_EQ(shape(list), "CoP");

    list.toggle(0, 3);
    EXPECT_EQ(shape(list), "ommMoP");
    EXPECT_EQ(list.reveal(), 0);
    animating->running[1].step(0.5);
    EXPECT_DOUBLE_EQ(list.reveal(), 0.875);
    animating->running[1].finish();
    EXPECT_EQ(shape(list), "oppppPoP");
    EXPECT_EQ(list.reveal(), 1);
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

TEST_F(Sections, TurnRoundAtATapInTheMiddleOfAMove) {
    auto& list = show(sent(3), notSent(2));
    list.toggle(0, 2);
    animating->running[0].step(0.5);
    EXPECT_EQ(shape(list), "cmMopP");
    list.toggle(0, 2);
    EXPECT_EQ(shape(list), "omMopP");
    EXPECT_DOUBLE_EQ(list.reveal(), 0.125);
    animating->running[0].finish();
    EXPECT_DOUBLE_EQ(list.reveal(), 0.125);
    animating->running[1].step(0.5);
    EXPECT_DOUBLE_EQ(list.reveal(), 0.125 + 0.875 * 0.875);
    animating->running[1].finish();
    EXPECT_EQ(shape(list), "oppPopP");
    EXPECT_THAT(taken(log), ElementsAre("sent hidden", "sent expanded"));
}

TEST_F(Sections, ComeToRestWhenAnotherIsTappedAndOutliveNothing) {
    auto& list = show(sent(3), notSent(2));
    list.toggle(0, 2);
    // The row of the lower section's head at this moment.
    list.toggle(3, 1);
    EXPECT_EQ(shape(list), "CcM");
    animating->running[0].finish();
    EXPECT_EQ(shape(list), "CcM");
    EXPECT_THAT(taken(log), ElementsAre("sent hidden", "not sent hidden"));
    tester.reset();
    view.reset();
    animating->running[1].finish();
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
