#include "Gallery/GalleryStage.hpp"
#include "Kept.hpp"
#include "Named.hpp"

namespace demo::testing {

namespace {

using quillet::testing::Call;
using quillet::testing::Reply;
using quillet::testing::sampleBody;

/// What an answer has in place of something else.
using Edits = std::vector<std::pair<QString, QString>>;

struct EdgeValue {
    const char* name;
    Edits association;
    std::optional<Edits> openOrders;
    /// Of a checkout, whose result is what is described then.
    Edits checkout = {};
};

const char* const cycle = R"("cycle":{"code":202605)";
const char* const noCycle = R"("season":{"code":202605)";

/// Puts the customer's order among the open ones once more.
Edits twice() {
    const QString order =
        QString::fromStdString(sampleBody(Call::associate)).section("\"cart\":", 1).chopped(1);
    return {{R"("carts":[)", R"("carts":[)" + order + ','}};
}

std::vector<EdgeValue> edgeValues() {
    return {
        {"no-cycle", {{cycle, noCycle}}, Edits{{cycle, noCycle}}, {{cycle, noCycle}}},
        {"no-cycle-of-the-summary", {{cycle, noCycle}}, Edits{{cycle, noCycle}}},
        {"two-open-orders", {}, twice()},
        {"cycle-of-the-open-orders", {{cycle, noCycle}}, Edits{{"202605,", "202614,"}}},
        {"two-cycles", {}, Edits{{"202605,", "202614,"}}},
        {"no-open-orders", {}, std::nullopt},
        // What is counted are the order's regular lines.
        {"other-counts", {{R"("totalItems":3)", R"("totalItems":9)"}}, Edits{}},
        {"largest",
         {{R"("totalPoints":60)", R"("totalPoints":18446744073709551615)"}},
         Edits{{R"("totalPoints":60)", R"("totalPoints":18446744073709551615)"}}},
        {"largest-result",
         {},
         Edits{},
         {{R"("addedPoints":20)", R"("addedPoints":18446744073709551615)"},
          {R"("addedProducts":2)", R"("addedProducts":18446744073709551615)"},
          {R"("errorProducts":1)", R"("errorProducts":9)"},
          {R"("quantity":1)", R"("quantity":18446744073709551615)"},
          {R"("productCode":81190)", R"("productCode":18446744073709551615)"},
          {R"("totalPoints":10)", R"("totalPoints":18446744073709551615)"}}},
        {"one-point",
         {},
         Edits{},
         {{R"("addedPoints":20)", R"("addedPoints":1)"}, {R"("totalPoints":10)", R"("totalPoints":1)"}}},
        {"no-points", {}, Edits{}, {{R"("addedPoints":20)", R"("addedPoints":0)"}}},
        {"nothing-refused", {}, Edits{}, {{"OUT_OF_STOCK", "OK"}, {"Labial mate Arcilla rosada", ""}}},
    };
}

Reply edited(Call call, const std::optional<Edits>& edits) {
    if (!edits) {
        return {.status = 500};
    }
    QString body = QString::fromStdString(sampleBody(call));
    for (const auto& [text, other] : *edits) {
        EXPECT_TRUE(body.contains(text)) << text.toStdString();
        body.replace(text, other);
    }
    return {.body = body.toStdString()};
}

} // namespace

TEST(EdgeValues, AreHeardAsTheyAreDescribed) {
    GalleryStage stage;
    for (const auto& [name, association, openOrders, checkout] : edgeValues()) {
        GalleryScreen screen = galleryScreen(checkout.empty() ? "summary" : "some-sent");
        screen.replies = {{Call::associate, edited(Call::associate, association)},
                          {Call::getOpenOrders, edited(Call::getOpenOrders, openOrders)},
                          {Call::checkout, edited(Call::checkout, checkout)}};
        const auto opened = stage.open(screen, {390, 1500});
        ASSERT_TRUE(opened) << name << ": " << opened.error().toStdString();
        expectKept(QStringLiteral("edge.") + name, heardOf(*stage.host().window()));
    }
}

} // namespace demo::testing
