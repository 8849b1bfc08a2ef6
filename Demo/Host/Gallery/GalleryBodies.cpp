#include "Gallery/GalleryBodies.hpp"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace demo {

namespace {

struct Ware {
    int code;
    const char* name;
    int quantity;
};

// Names of different lengths, one of them too long for a line.
constexpr std::array wares{Ware{81190, "Perfume Luz de tarde 100 ml", 1},
                           Ware{90318, "Labial mate Arcilla rosada", 3},
                           Ware{61204, "Champú sólido Romero y limón, repuesto de 90 g con su caja", 12},
                           Ware{70412, "Crema de manos Brisa de almendra 75 ml", 2}, Ware{55120, "Jabón", 1}};

constexpr int unitPoints = 10;

QString string(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

std::string checkoutBody(std::string_view verdict, const std::vector<std::string_view>& statuses) {
    QJsonArray products;
    int allPoints = 0;
    int addedPoints = 0;
    for (std::size_t i = 0; i < statuses.size(); ++i) {
        const Ware& ware = wares[i % wares.size()];
        const int points = unitPoints * ware.quantity;
        allPoints += points;
        addedPoints += statuses[i] == "OK" ? points : 0;
        products.append(QJsonObject{{QStringLiteral("productCode"), ware.code},
                                    {QStringLiteral("description"), QString::fromUtf8(ware.name)},
                                    {QStringLiteral("status"), string(statuses[i])},
                                    {QStringLiteral("quantity"), ware.quantity},
                                    {QStringLiteral("totalPrice"), 8990.5 * ware.quantity},
                                    {QStringLiteral("unitPoints"), unitPoints},
                                    {QStringLiteral("totalPoints"), points}});
    }
    const int all = static_cast<int>(statuses.size());
    const int added = static_cast<int>(std::ranges::count(statuses, std::string_view("OK")));
    const QJsonObject cycle{{QStringLiteral("code"), 202605},
                            {QStringLiteral("startDate"), QStringLiteral("2026-03-01T00:00:00.000+0000")},
                            {QStringLiteral("endDate"), QStringLiteral("2026-03-21T23:59:59.000+0000")}};
    const QJsonObject body{
        {QStringLiteral("submittedOrderId"), QStringLiteral("A-1")},
        {QStringLiteral("consultant"),
         QJsonObject{{QStringLiteral("id"), 41052}, {QStringLiteral("cycle"), cycle}}},
        {QStringLiteral("message"), string(verdict)},
        {QStringLiteral("summary"), QJsonObject{{QStringLiteral("allItems"), all},
                                                {QStringLiteral("errorItems"), all - added},
                                                {QStringLiteral("addedItems"), added},
                                                {QStringLiteral("allPoints"), allPoints},
                                                {QStringLiteral("addedPoints"), addedPoints},
                                                {QStringLiteral("addedProducts"), added},
                                                {QStringLiteral("errorProducts"), all - added}}},
        {QStringLiteral("products"), products}};
    return QJsonDocument(body).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace demo
