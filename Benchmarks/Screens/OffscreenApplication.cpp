#include "Screens/OffscreenApplication.hpp"

#include "KelCommon/KelLocalized.hpp"

#include <string>
#include <utility>

namespace quillet::benchmarks {

namespace {

/// Has to come before the application, which reads these.
int& withEnvironment(int& argumentCount) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    return argumentCount;
}

} // namespace

OffscreenApplication::OffscreenApplication()
    : application_(withEnvironment(argumentCount_), arguments_.data()) {
    kel::setLanguage(QStringLiteral("es"));
}

std::shared_ptr<const std::vector<Product>> madeProducts(std::size_t count, bool someNotSent) {
    std::vector<Product> products(count);
    for (std::size_t i = 0; i < count; ++i) {
        products[i].productCode = 10000 + i;
        products[i].description = "Protector solar FPS 50 rostro y cuerpo " + std::to_string(i);
        products[i].quantity = 1 + i % 3;
        products[i].totalPoints = i % 120;
        products[i].status =
            someNotSent && i % 2 == 0 ? ProductErrorStatus::unavailable : ProductErrorStatus::none;
    }
    return std::make_shared<const std::vector<Product>>(std::move(products));
}

} // namespace quillet::benchmarks
