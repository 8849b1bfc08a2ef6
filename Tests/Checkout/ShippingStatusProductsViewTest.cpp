#include "Checkout/Status/ShippingStatusProductsView.hpp"

#include "Support/FakeHost.hpp"

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

std::vector<Product> products(std::size_t count) {
    std::vector<Product> result(count);
    for (std::size_t i = 0; i < count; ++i) {
        result[i].productCode = i + 1;
    }
    return result;
}

/// The list as it stands, a letter a row: head open (O) or closed (C), product (p); in capitals where the
/// row ends its section, which is when a head has nothing below it.
std::string shape(const ShippingStatusProductsView& view) {
    std::string rows;
    for (int row = 0; row < view.rowCount(); ++row) {
        const QModelIndex index = view.index(row);
        const bool last = index.data(Role::LastRole).toBool();
        const char letter = !index.data(Role::IsHeadRole).toBool()    ? 'p'
                            : index.data(Role::ExpandedRole).toBool() ? 'o'
                                                                      : 'c';
        rows += last ? static_cast<char>(std::toupper(letter)) : letter;
    }
    return rows;
}

} // namespace

// The tester ends the program at the first signal that does not fit the rows.
TEST(ShippingStatusProductsView, OpensAndClosesItsSectionsAndTellsOncePerTap) {
    const struct {
        std::optional<std::vector<Product>> sent;
        std::optional<std::vector<Product>> notSent;
        std::string atFirst;
        std::vector<std::tuple<int, std::string, std::string>> taps;
    } cases[] = {
        {products(2),
         products(1),
         "opPoP",
         {{0, "sent hidden", "CoP"},
          {1, "not sent hidden", "CC"},
          {0, "sent expanded", "opPC"},
          {3, "not sent expanded", "opPoP"}}},
        {products(0), products(0), "OO", {{1, "not sent hidden", "OC"}, {0, "sent hidden", "CC"}}},
        {std::nullopt, products(1), "oP", {{0, "not sent hidden", "C"}, {0, "not sent expanded", "oP"}}},
        {products(1), std::nullopt, "oP", {{0, "sent hidden", "C"}}},
        {std::nullopt, std::nullopt, "", {}},
    };
    for (const auto& [sent, notSent, atFirst, taps] : cases) {
        const auto log = makeLog();
        const auto delegate = std::make_shared<FakeDelegate>(log);
        ShippingStatusProductsView view(sent, notSent);
        const QAbstractItemModelTester tester(&view, QAbstractItemModelTester::FailureReportingMode::Fatal);
        view.setDelegate(delegate);
        EXPECT_EQ(shape(view), atFirst);
        for (const auto& [row, notice, afterwards] : taps) {
            view.toggle(row);
            EXPECT_THAT(taken(log), ElementsAre(notice));
            EXPECT_EQ(shape(view), afterwards);
        }
    }
}

TEST(ShippingStatusProductsView, IgnoresTapsBesideTheHeadsAndADelegateThatHasGone) {
    const auto log = makeLog();
    auto delegate = std::make_shared<FakeDelegate>(log);
    ShippingStatusProductsView view(products(2), products(1));
    view.setDelegate(delegate);
    for (const int row : {-1, 1, 2, 4, 5, std::numeric_limits<int>::max()}) {
        view.toggle(row);
    }
    EXPECT_EQ(shape(view), "opPoP");
    delegate.reset();
    view.toggle(0);
    EXPECT_EQ(shape(view), "CoP");
    EXPECT_THAT(taken(log), IsEmpty());
}

TEST(ShippingStatusProductsView, WritesNumbersOfAllSixtyFourBits) {
    constexpr auto largest = std::numeric_limits<std::uint64_t>::max();
    Product one;
    one.productCode = one.quantity = largest;
    one.description = "Champú";
    one.totalPoints = 1;
    Product many;
    many.totalPoints = largest;
    const ShippingStatusProductsView view({{one}}, {{many}});
    const auto text = [&](int row, Role role) { return view.index(row).data(role).toString(); };
    EXPECT_EQ(text(1, Role::CodeRole), "Code: 18446744073709551615");
    EXPECT_EQ(text(1, Role::QuantityRole), "18446744073709551615");
    EXPECT_EQ(text(1, Role::DescriptionRole), "Champú");
    EXPECT_EQ(text(1, Role::PointsRole), "1 punto");
    EXPECT_EQ(text(3, Role::PointsRole), "18446744073709551615 puntos");
    EXPECT_FALSE(view.index(1).data(Role::HasReasonRole).toBool());
    EXPECT_TRUE(view.index(3).data(Role::HasReasonRole).toBool());
}

} // namespace quillet::testing
