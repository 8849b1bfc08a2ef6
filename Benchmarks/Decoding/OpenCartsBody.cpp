#include "Decoding/OpenCartsBody.hpp"

#include <array>
#include <cstdint>
#include <random>
#include <string_view>

namespace quillet::benchmarks {

namespace {

constexpr std::array<std::string_view, 12> names = {"Labial mate tono 12",
                                                    "Crema de manos",
                                                    "Máscara de pestañas efecto volumen",
                                                    "Jabón líquido de maracuyá 250 ml",
                                                    "Perfume \\\"Noche\\\" edición limitada",
                                                    "Kit: champú + acondicionador \\u002d repuestos",
                                                    "Esmalte rojo",
                                                    "Protector solar FPS 50 rostro y cuerpo",
                                                    "Desodorante en crema sin perfume",
                                                    "Base líquida tono canela",
                                                    "Delineador negro",
                                                    "Agua de colonia niña\\/niño 100 ml"};

class Writer {
public:
    explicit Writer(std::uint32_t seed) : random_(seed) {}

    std::string cart(std::size_t number, std::size_t lines) {
        const std::size_t benefits = 1 + pick(3);
        std::string text = R"({"cartNumber":)" + std::to_string(4000000 + number);
        text += R"(,"cartUuid":"6f1c2a9e-83b4-4d17-9c55-)" + std::to_string(100000000000 + number);
        text += R"(","status":"OPEN","type":"SELL_OUT","createdAt":"2024-03-)";
        text += std::to_string(10 + pick(20));
        text += "T1";
        text += std::to_string(pick(10)) + R"(:25:09.4)";
        text += std::to_string(10 + pick(90)) + R"(-0300","totalRegularItems":)";
        text += std::to_string(lines - benefits) + R"(,"totalBenefitItems":)" + std::to_string(benefits);
        text +=
            R"(,"totalItems":)" + std::to_string(lines) + R"(,"totalPoints":)" + std::to_string(pick(900));
        text += R"(,"cartTotal":)" + price(90000) + R"(,"regularItemsProfit":)" + price(30000);
        text += R"(,"benefitItemsProfit":)" + price(9000) + R"(,"totalProfit":)" + price(39000);
        text += R"(,"magazineCycle":"202405","regularItems":[)" + items(lines - benefits);
        return text + R"(],"benefitItems":[)" + items(benefits) + "]}";
    }

private:
    std::string items(std::size_t count) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i) {
            text += i == 0 ? "" : ",";
            text += item();
        }
        return text;
    }

    std::string item() {
        const std::string code = std::to_string(10000 + pick(90000));
        std::string text = R"({"productCode":)" + code + R"(,"origin":"MAGAZINE","productDescription":")";
        text += names[pick(names.size())];
        text += R"(","unitPoints":)" + std::to_string(pick(40)) + R"(,"totalPoints":)" +
                std::to_string(pick(120));
        text += R"(,"totalPrice":)" + price(60000) + R"(,"totalProfit":)" + price(20000);
        text += R"(,"choosable":false,"amount":)" + std::to_string(1 + pick(3)) + R"(,"magazineAmount":)";
        text += std::to_string(1 + pick(3)) + R"(,"unitPrice":)" + price(20000) + R"(,"unitProfit":)" +
                price(6000);
        text += R"(,"imageUrl":"https://images.quillet.example/products/)" + code +
                R"(/front-800x800.jpg","isKit":)";
        return text + (pick(10) == 0 ? "true}" : "false}");
    }

    std::string price(std::size_t highestCents) {
        const std::size_t cents = pick(highestCents);
        const std::string fraction = std::to_string(100 + cents % 100);
        return std::to_string(cents / 100) + '.' + fraction.substr(1);
    }

    std::size_t pick(std::size_t below) { return random_() % below; }

    std::mt19937 random_;
};

} // namespace

std::string openCartsBody(std::uint32_t seed, std::size_t carts, std::size_t linesPerCart) {
    Writer writer(seed);
    std::string body =
        R"({"consultant":{"id":8812345,"cycle":{"code":202405,"startDate":)"
        R"("2024-03-01T00:00:00.000-0300","endDate":"2024-03-21T23:59:59.999-0300"}},"carts":[)";
    for (std::size_t i = 0; i < carts; ++i) {
        body += i == 0 ? "" : ",";
        body += writer.cart(i, linesPerCart);
    }
    return body + "]}";
}

} // namespace quillet::benchmarks
