#include "Gateway/Checkout.hpp"

#include <algorithm>
#include <vector>

namespace quillet::gateway {

namespace {

struct Product {
    std::int64_t code = 0;
    std::string description;
    std::int64_t quantity = 0;
    std::int64_t price = 0;
    std::int64_t points = 0;
    std::int64_t unitPoints = 0;
    std::string_view status;

    [[nodiscard]] bool isAdded() const { return status == "OK"; }
};

struct Count {
    std::int64_t products = 0;
    std::int64_t items = 0;
    std::int64_t points = 0;
};

// Selects the carts that a checkout takes. The two parameters are the consultant's number and her cycle.
constexpr std::string_view taken =
    "consultant = ?1 AND status = 'OPEN' AND (?2 IS NULL OR magazine_cycle <= ?2)";

std::vector<Product> productsOf(Database& database, const Consultant& consultant) {
    std::string sql =
        "SELECT product, min(description), sum(amount), sum(amount * unit_price), sum(points), "
        "max(unit_points) "
        "FROM (SELECT cart_lines.*, row_number() OVER (ORDER BY created, number, position) AS place "
        "FROM cart_lines JOIN carts ON uuid = cart WHERE ";
    sql.append(taken).append(") GROUP BY product ORDER BY min(place)");
    auto rows = database.query(sql, consultant.id, consultant.cycle);
    std::vector<Product> products;
    while (rows.next()) {
        products.push_back({.code = rows.integer(0),
                            .description = rows.text(1),
                            .quantity = rows.integer(2),
                            .price = rows.integer(3),
                            .points = rows.integer(4),
                            .unitPoints = rows.integer(5),
                            .status = {}});
    }
    return products;
}

std::string_view statusOf(Database& database, const Consultant& consultant, const Product& product) {
    auto catalogue = database.query("SELECT stock FROM catalogue WHERE code = ?", product.code);
    if (!catalogue.next()) {
        return "NOT_FOUND";
    }
    if (catalogue.integer(0) < product.quantity) {
        return "UNAVAILABLE";
    }
    auto quota = database.query("SELECT units FROM quotas WHERE product = ? AND consultant IN (0, ?) "
                                "ORDER BY consultant DESC LIMIT 1",
                                product.code, consultant.id);
    if (!quota.next()) {
        return "OK";
    }
    auto before = database.query("SELECT ifnull(sum(quantity), 0) FROM sent "
                                 "WHERE consultant = ? AND product = ? AND cycle IS ?",
                                 consultant.id, product.code, consultant.cycle);
    before.next();
    return quota.integer(0) - before.integer(0) < product.quantity ? "QUANTITY_ERROR" : "OK";
}

std::string nextOrderId(Database& database, const Consultant& consultant) {
    auto row = database.query("SELECT printf('PED-%s-%05d', ?, count(DISTINCT order_id) + 1) FROM sent",
                              consultant.country);
    row.next();
    return row.text(0);
}

void send(Database& database, const Consultant& consultant, const std::string& order,
          const Product& product) {
    database.execute("UPDATE catalogue SET stock = stock - ? WHERE code = ?", product.quantity, product.code);
    database.execute("INSERT INTO sent (order_id, consultant, cycle, product, quantity, points, price) "
                     "VALUES (?, ?, ?, ?, ?, ?, ?)",
                     order, consultant.id, consultant.cycle, product.code, product.quantity, product.points,
                     product.price);
}

Count countOf(const std::vector<Product>& products, bool added) {
    Count count;
    for (const auto& product : products) {
        if (product.isAdded() != added) {
            continue;
        }
        ++count.products;
        count.items += product.quantity;
        count.points += product.points;
    }
    return count;
}

Json productJson(const Product& product) {
    Json json{{"productCode", product.code},
              {"description", product.description},
              {"status", product.status},
              {"quantity", product.quantity},
              {"totalPrice", money(product.price)}};
    // Where points are given per pack, or some units were gifts, a single unit has no points of its own.
    if (product.unitPoints * product.quantity == product.points) {
        json["unitPoints"] = product.unitPoints;
    }
    json["totalPoints"] = product.points;
    return json;
}

} // namespace

Reply checkOut(Database& database, const Consultant& consultant) {
    Transaction transaction(database);
    auto products = productsOf(database, consultant);
    for (auto& product : products) {
        product.status = statusOf(database, consultant, product);
    }
    const auto added = countOf(products, true);
    const auto failed = countOf(products, false);

    std::string order;
    if (added.products > 0) {
        order = nextOrderId(database, consultant);
        for (const auto& product : products) {
            if (product.isAdded()) {
                send(database, consultant, order, product);
            }
        }
        database.execute(std::string("UPDATE carts SET status = 'SUBMITTED' WHERE ").append(taken),
                         consultant.id, consultant.cycle);
    }
    const std::string_view verdict = added.products == 0    ? "CART_SUBMITTED_ERROR"
                                     : failed.products == 0 ? "CART_SUBMITTED_SUCCESS"
                                                            : "CART_SUBMITTED_PARTIAL_SUCCESS";
    Json list = Json::array();
    std::ranges::transform(products, std::back_inserter(list), productJson);
    const Json body{{"submittedOrderId", order},
                    {"consultant", consultantJson(database, consultant)},
                    {"message", verdict},
                    {"summary",
                     {{"allItems", added.items + failed.items},
                      {"errorItems", failed.items},
                      {"addedItems", added.items},
                      {"allPoints", added.points + failed.points},
                      {"addedPoints", added.points},
                      {"addedProducts", added.products},
                      {"errorProducts", failed.products}}},
                    {"products", std::move(list)}};
    transaction.commit();
    return {.status = added.products > 0 ? 200
                      : products.empty() ? 400
                                         : 422,
            .body = body.dump(),
            .headers = {}};
}

} // namespace quillet::gateway
