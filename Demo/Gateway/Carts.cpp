#include "Gateway/Carts.hpp"

#include "Gateway/ErrorBodies.hpp"

namespace quillet::gateway {

namespace {

struct Sums {
    std::int64_t items = 0;
    std::int64_t points = 0;
    std::int64_t price = 0;
    std::int64_t profit = 0;
};

struct Lines {
    Json json = Json::array();
    Sums sums;
};

Lines linesOf(Database& database, const std::string& cart, bool benefit) {
    auto rows = database.query(
        "SELECT product, description, unit_points, points, amount, unit_price, unit_profit, kit "
        "FROM cart_lines WHERE cart = ? AND benefit = ? ORDER BY position",
        cart, benefit);
    Lines lines;
    while (rows.next()) {
        const auto product = rows.integer(0);
        const auto amount = rows.integer(4);
        const auto price = rows.integer(5);
        const auto profit = rows.integer(6);
        lines.json.push_back({
            {"productCode", product},
            {"origin", benefit ? "BENEFIT" : "MAGAZINE"},
            {"productDescription", rows.text(1)},
            {"unitPoints", rows.integer(2)},
            {"totalPoints", rows.integer(3)},
            {"totalPrice", money(amount * price)},
            {"totalProfit", money(amount * profit)},
            {"choosable", benefit},
            {"amount", amount},
            {"magazineAmount", amount},
            {"unitPrice", money(price)},
            {"unitProfit", money(profit)},
            {"imageUrl", "https://images.quillet.example/products/" + std::to_string(product) + ".png"},
            {"isKit", rows.integer(7) != 0},
        });
        lines.sums.items += amount;
        lines.sums.points += rows.integer(3);
        lines.sums.price += amount * price;
        lines.sums.profit += amount * profit;
    }
    return lines;
}

Json cartJson(Database& database, const std::string& uuid) {
    auto cart =
        database.query("SELECT number, status, created, magazine_cycle FROM carts WHERE uuid = ?", uuid);
    cart.next();
    auto regular = linesOf(database, uuid, false);
    auto benefit = linesOf(database, uuid, true);
    return {
        {"cartNumber", cart.integer(0)},
        {"cartUuid", uuid},
        {"status", cart.text(1)},
        {"type", "SELL_OUT"},
        {"createdAt", cart.text(2)},
        {"totalRegularItems", regular.sums.items},
        {"totalBenefitItems", benefit.sums.items},
        {"totalItems", regular.sums.items + benefit.sums.items},
        {"totalPoints", regular.sums.points + benefit.sums.points},
        {"cartTotal", money(regular.sums.price + benefit.sums.price)},
        {"regularItemsProfit", money(regular.sums.profit)},
        {"benefitItemsProfit", money(benefit.sums.profit)},
        {"totalProfit", money(regular.sums.profit + benefit.sums.profit)},
        {"magazineCycle", cart.text(3)},
        {"regularItems", std::move(regular.json)},
        {"benefitItems", std::move(benefit.json)},
    };
}

} // namespace

Reply associate(Database& database, const Consultant& consultant, const Call& call, std::string_view target) {
    Transaction transaction(database);
    auto cart = database.query("SELECT consultant, status FROM carts WHERE uuid = ?", call.cart);
    if (!cart.next()) {
        return clientError(404, target, "There is no such cart.");
    }
    if (!cart.isNull(0) && cart.integer(0) != consultant.id) {
        return serverError(422, target, "ERROR_CART_OTHER_CONSULTANT", "Another consultant holds this cart.");
    }
    if (cart.text(1) == "SUBMITTED") {
        return serverError(422, target, "ERROR_CART_ALREADY_SUBMITTED",
                           "This cart has been submitted before.");
    }
    database.execute("UPDATE carts SET consultant = ? WHERE uuid = ?", consultant.id, call.cart);
    const Json body{{"consultant", consultantJson(database, consultant)},
                    {"cart", cartJson(database, call.cart)}};
    transaction.commit();
    return {.status = 200, .body = body.dump(), .headers = {}};
}

Reply listOpenCarts(Database& database, const Consultant& consultant) {
    Json carts = Json::array();
    auto rows = database.query(
        "SELECT uuid FROM carts WHERE consultant = ? AND status = 'OPEN' ORDER BY created, number",
        consultant.id);
    while (rows.next()) {
        carts.push_back(cartJson(database, rows.text(0)));
    }
    const Json body{{"consultant", consultantJson(database, consultant)}, {"carts", std::move(carts)}};
    return {.status = 200, .body = body.dump(), .headers = {}};
}

} // namespace quillet::gateway
