#include "Checkout/Inputs/TotalAddedProductPointsPresenter.hpp"
#include "Checkout/Screen/CheckoutRouter.hpp"
#include "Views/Screen/ViewController.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace quillet::testing {

namespace {

constexpr auto largest = std::numeric_limits<std::uint64_t>::max();

/// Keeps the input that the router makes and what the real factory returns for it.
template <typename Input>
class Spy final : public ResultViewCreating<Input> {
public:
    explicit Spy(std::shared_ptr<std::unique_ptr<ProductsCheckoutStatusView>> made)
        : made_(std::move(made)) {}
    [[nodiscard]] std::unique_ptr<ProductsCheckoutStatusView>
    view(Input input, ProductsCheckoutStatusViewController& screen) const override {
        *made_ = ResultViewFactory<Input>({}).view(std::move(input), screen);
        return {};
    }
    [[nodiscard]] std::weak_ptr<QuilletNavigationDelegate> navigationDelegate() const override { return {}; }

private:
    std::shared_ptr<std::unique_ptr<ProductsCheckoutStatusView>> made_;
};

Product product(std::uint64_t code, ProductErrorStatus status) {
    Product result;
    result.productCode = code;
    result.status = status;
    return result;
}

/// A response whose counters deliberately disagree with its products.
CheckoutResponse response(std::optional<Cycle> cycle) {
    CheckoutResponse result;
    result.consultant.cycle = cycle;
    result.summary = {.addedPoints = 120, .addedProducts = largest, .errorProducts = 9};
    result.products = {product(5, ProductErrorStatus::notFound), product(3, ProductErrorStatus::none),
                       product(4, ProductErrorStatus::unavailable), product(1, ProductErrorStatus::none),
                       product(2, ProductErrorStatus::quantityError)};
    return result;
}

/// The lists as they are shown: each section's title, then its products' codes.
QStringList rows(const ProductsCheckoutStatusView& view) {
    const QAbstractItemModel& model = *view.products();
    QStringList lines;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        const bool head = index.data(ShippingStatusProductsView::IsHeadRole).toBool();
        lines << (head ? index.data(ShippingStatusProductsView::TitleRole).toString()
                       : index.data(ShippingStatusProductsView::ProductRole).value<ProductRow>().code);
    }
    return lines;
}

struct CheckoutResults : ::testing::Test {
    using Route = void (CheckoutRoutering::*)(const ViewController&, const SharedCheckoutResponse&);

    std::unique_ptr<ProductsCheckoutStatusView> show(Route route, const CheckoutResponse& answer) {
        (router.*route)(ViewControllerWrapper({}), std::make_shared<const CheckoutResponse>(answer));
        return std::move(*made);
    }

    std::shared_ptr<std::unique_ptr<ProductsCheckoutStatusView>> made =
        std::make_shared<std::unique_ptr<ProductsCheckoutStatusView>>();
    CheckoutRouter router{std::make_unique<Spy<AllProductsAddedFactoryInput>>(made),
                          std::make_unique<Spy<ProductsPartiallyAddedFactoryInput>>(made),
                          std::make_unique<Spy<NoProductAddedFactoryInput>>(made)};
};

} // namespace

TEST_F(CheckoutResults, ShowTheSummarysCountersAndSplitTheProductsInOrder) {
    const TextWithTagView sent{"Productos enviados con éxito:", "18446744073709551615", TagColor::success};
    const TextWithTagView sentWithoutColon{"Productos enviados con éxito", sent.tagText, TagColor::success};
    const TextWithTagView notSent{"Productos no enviados:", "9", TagColor::alert};
    const QStringList sentRows{"Productos enviados", "Code: 3", "Code: 1"};
    const QStringList notSentRows{"Productos no enviados", "Code: 5", "Code: 4", "Code: 2"};
    const struct {
        Route route;
        kel::KelIconNumber mark;
        QString points;
        QString message;
        QList<TextWithTagView> counters;
        QStringList products;
    } cases[] = {
        {&CheckoutRoutering::showAllProductsAdded,
         kel::KelIconNumber::checkCircle,
         "120 puntos enviados en total",
         "Vea los productos que fueron enviados al carrito.",
         {sentWithoutColon},
         sentRows},
        {&CheckoutRoutering::showProductsPartiallyAdded,
         kel::KelIconNumber::error,
         "120 puntos enviados en total",
         "Algunos productos no fueron enviados al carrito. ¡Vea!",
         {notSent, sent},
         sentRows + notSentRows},
        {&CheckoutRoutering::showNoProductAdded,
         {},
         "",
         "Infelizmente niguno de los productos fue enviado al carrito.",
         {notSent},
         notSentRows},
    };
    for (const auto& [route, mark, points, message, counters, products] : cases) {
        SCOPED_TRACE(message.toStdString());
        const auto view = show(route, response(Cycle{202305, {}, {}}));
        const ProductsCheckoutStatusView& status = *view;
        EXPECT_EQ(status.cycleLabel()->text().plainText(), "Ciclo actual: 05");
        const auto* total = status.totalAddedProductPointsLabel();
        EXPECT_EQ(total ? total->text().plainText() : QString(), points);
        EXPECT_EQ(status.headerView()->iconView()->hasMark(), mark != kel::KelIconNumber{});
        EXPECT_EQ(status.headerView()->iconView()->markNumber(), int(mark));
        EXPECT_EQ(status.headerView()->mainMessage(), message);
        EXPECT_EQ(status.headerView()->textWithTagViews(), counters);
        EXPECT_EQ(rows(*view), products);
    }
}

TEST_F(CheckoutResults, HaveAnEmptyCycleWithoutOneAndEmptySectionsWithoutProducts) {
    auto answer = response(std::nullopt);
    answer.products = {product(1, ProductErrorStatus::none)};
    const auto partial = show(&CheckoutRoutering::showProductsPartiallyAdded, answer);
    EXPECT_EQ(partial->cycleLabel()->text().plainText(), "Ciclo actual: ");
    EXPECT_EQ(rows(*partial), (QStringList{"Productos enviados", "Code: 1", "Productos no enviados"}));
    EXPECT_EQ(rows(*show(&CheckoutRoutering::showNoProductAdded, answer)),
              (QStringList{"Productos no enviados"}));
}

TEST(TotalAddedProductPoints, AreWrittenInFullAndInTheRightNumber) {
    const std::pair<std::uint64_t, QString> cases[] = {
        {0, ""},
        {1, "1 punto enviado en total"},
        {2, "2 puntos enviados en total"},
        {1500, "1500 puntos enviados en total"},
        {largest, "18446744073709551615 puntos enviados en total"},
    };
    for (const auto& [points, text] : cases) {
        EXPECT_EQ(TotalAddedProductPointsPresenter(points).pointsText(), text);
    }
}

} // namespace quillet::testing
