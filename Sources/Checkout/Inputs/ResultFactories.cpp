#include "Checkout/Inputs/ResultFactories.hpp"

#include "Checkout/Inputs/TotalAddedProductPointsPresenter.hpp"

#include <utility>

namespace quillet {

namespace {

TextWithTagView sentRow(const QString& text, std::uint64_t quantity) {
    return {text, QString::number(quantity), TagColor::success};
}

TextWithTagView notSentRow(std::uint64_t quantity) {
    return {QStringLiteral("Productos no enviados:"), QString::number(quantity), TagColor::alert};
}

std::unique_ptr<PointsLabel> pointsLabel(std::uint64_t points) {
    return std::make_unique<PointsLabel>(TotalAddedProductPointsPresenter(points), kel::KelFonts::Subtitle1);
}

std::unique_ptr<ProductsCheckoutStatusView> compose(ProductsCheckoutStatusViewController& screen,
                                                    const QString& cycle, std::unique_ptr<PointsLabel> points,
                                                    std::unique_ptr<ProductsHeaderView> header,
                                                    std::optional<ExpansionPanel> shipped,
                                                    std::optional<ExpansionPanel> unshipped) {
    auto lists = std::make_unique<ShippingStatusProductsView>(std::move(shipped), std::move(unshipped));
    lists->setup();
    lists->setDelegate(screen.weakSelf());
    auto status = std::make_unique<ProductsCheckoutStatusView>(
        std::make_unique<CycleLabel>(cycle), std::move(points), std::move(header), std::move(lists),
        std::make_unique<Colors>(), std::make_unique<ButtonFactory>(), std::make_unique<Spacer>(),
        std::make_unique<Sizer>());
    status->setDelegate(screen.weakSelf());
    return status;
}

} // namespace

std::unique_ptr<ProductsCheckoutStatusView> resultView(AllProductsAddedFactoryInput input,
                                                       ProductsCheckoutStatusViewController& viewController) {
    // This one text carries no colon; that of the partial result does.
    return compose(
        viewController, input.cycle, pointsLabel(input.totalAddedProductsPoints),
        std::make_unique<ProductsHeaderView>(
            std::make_unique<IconProductsSuccessView>(),
            QStringLiteral("Vea los productos que fueron enviados al carrito."),
            QList{sentRow(QStringLiteral("Productos enviados con éxito"), input.addedProductsQuantity)}),
        ProductsViewFactory::shippedProductsView(std::move(input.products)), std::nullopt);
}

std::unique_ptr<ProductsCheckoutStatusView> resultView(ProductsPartiallyAddedFactoryInput input,
                                                       ProductsCheckoutStatusViewController& viewController) {
    return compose(
        viewController, input.cycle, pointsLabel(input.totalAddedProductPoints),
        std::make_unique<ProductsHeaderView>(
            std::make_unique<IconProductsFailureView>(),
            QStringLiteral("Algunos productos no fueron enviados al carrito. ¡Vea!"),
            QList{notSentRow(input.notAddedProductsQuantity),
                  sentRow(QStringLiteral("Productos enviados con éxito:"), input.addedProductsQuantity)}),
        ProductsViewFactory::shippedProductsView(std::move(input.addedProducts)),
        ProductsViewFactory::unshippedProductsView(std::move(input.notAddedProducts)));
}

std::unique_ptr<ProductsCheckoutStatusView> resultView(NoProductAddedFactoryInput input,
                                                       ProductsCheckoutStatusViewController& viewController) {
    return compose(viewController, input.cycle, nullptr,
                   std::make_unique<ProductsHeaderView>(
                       std::make_unique<IconWarningView>(),
                       QStringLiteral("Infelizmente niguno de los productos fue enviado al carrito."),
                       QList{notSentRow(input.notAddedProductsQuantity)}),
                   std::nullopt, ProductsViewFactory::unshippedProductsView(std::move(input.products)));
}

} // namespace quillet
