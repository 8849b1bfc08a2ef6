#include "Checkout/Inputs/ResultFactories.hpp"

#include "Checkout/Inputs/TotalAddedProductPointsPresenter.hpp"

namespace quillet {

namespace {

TextWithTagView sentRow(const QString& text, std::uint64_t quantity) {
    return {text, QString::number(quantity), TagColor::success};
}

TextWithTagView notSentRow(std::uint64_t quantity) {
    return {QStringLiteral("Productos no enviados:"), QString::number(quantity), TagColor::alert};
}

std::unique_ptr<ScrollableView> compose(ProductsCheckoutStatusViewController& screen, const QString& cycle,
                                        std::optional<std::uint64_t> totalPoints, ProductsHeaderView header,
                                        std::optional<std::vector<Product>> shipped,
                                        std::optional<std::vector<Product>> unshipped) {
    auto lists = std::make_unique<ShippingStatusProductsView>(std::move(shipped), std::move(unshipped));
    lists->setDelegate(screen.weakSelf());
    auto status = std::make_unique<ProductsCheckoutStatusView>(
        cycleLabel(cycle),
        totalPoints ? std::optional(TotalAddedProductPointsPresenter(*totalPoints).pointsText())
                    : std::nullopt,
        std::move(header), std::move(lists));
    status->setDelegate(screen.weakSelf());
    auto root = std::make_unique<ScrollableView>();
    root->setContentView(std::move(status));
    return root;
}

} // namespace

template <>
std::unique_ptr<ScrollableView>
AllProductsAddedFactory::view(const AllProductsAddedFactoryInput& input,
                              ProductsCheckoutStatusViewController& viewController) const {
    // This one text carries no colon; that of the partial result does.
    return compose(viewController, input.cycle, input.totalAddedProductsPoints,
                   {IconStatus::productsSuccess,
                    QStringLiteral("Vea los productos que fueron enviados al carrito."),
                    {sentRow(QStringLiteral("Productos enviados con éxito"), input.addedProductsQuantity)}},
                   input.products, std::nullopt);
}

template <>
std::unique_ptr<ScrollableView>
ProductsPartiallyAddedFactory::view(const ProductsPartiallyAddedFactoryInput& input,
                                    ProductsCheckoutStatusViewController& viewController) const {
    return compose(viewController, input.cycle, input.totalAddedProductPoints,
                   {IconStatus::productsFailure,
                    QStringLiteral("Algunos productos no fueron enviados al carrito. ¡Vea!"),
                    {notSentRow(input.notAddedProductsQuantity),
                     sentRow(QStringLiteral("Productos enviados con éxito:"), input.addedProductsQuantity)}},
                   input.addedProducts, input.notAddedProducts);
}

template <>
std::unique_ptr<ScrollableView>
NoProductAddedFactory::view(const NoProductAddedFactoryInput& input,
                            ProductsCheckoutStatusViewController& viewController) const {
    return compose(viewController, input.cycle, std::nullopt,
                   {IconStatus::warning,
                    QStringLiteral("Infelizmente niguno de los productos fue enviado al carrito."),
                    {notSentRow(input.notAddedProductsQuantity)}},
                   std::nullopt, input.products);
}

} // namespace quillet
