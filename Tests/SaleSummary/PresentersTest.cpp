#include "Models/RecordFields.hpp"
#include "Quillet/FatalErrorWrapper.hpp"
#include "SaleSummary/Fakes.hpp"
#include "SaleSummary/UseCases/SaleSummarySuccessUseCase.hpp"

#include <gmock/gmock.h>

#include <cstdlib>
#include <ctime>
#include <limits>

namespace quillet::testing {

namespace {

constexpr auto largest = std::numeric_limits<std::uint64_t>::max();

Order orderOf(std::uint64_t points) {
    Order order;
    order.totalPoints = points;
    return order;
}

Cycle cycleOf(std::uint64_t code) {
    return {code, *iso8601Full("2023-03-01T00:00:00.000+0000"), *iso8601Full("2023-03-21T23:59:59.000+0000")};
}

OpenOrdersResult openOrders(std::vector<Order> orders, std::optional<Cycle> cycle = {}) {
    return {
        .response = OpenOrdersResponse{{1, cycle}, std::move(orders)}, .error = {}, .httpStatusCode = 200};
}

SaleSummaryPresenter present(const OrderResponse& response, std::optional<OpenOrdersResult> open) {
    return SaleSummarySuccessUseCase({}, shared(OrderResult{response, {}, 200}),
                                     open ? shared(*std::move(open)) : nullptr,
                                     std::make_shared<RecordingAnalytics>(makeLog()))
        .createPresenter(response.order);
}

/// The two parts of the summary that show a presenter.
struct Shown {
    explicit Shown(SaleSummaryPresenter presenter)
        : view(SaleSummaryViewFactory().create(std::move(presenter))) {}
    [[nodiscard]] SaleSummaryHeaderView& head() const {
        return *dynamic_cast<SaleSummaryView&>(*view).headerView();
    }
    [[nodiscard]] HighlightedOrderView& order() const {
        return *dynamic_cast<SaleSummaryView&>(*view).highlightedOrderView();
    }
    std::unique_ptr<SaleSummaryScreen> view;
};

/// Sets the device's time zone while it exists.
class DeviceZone {
public:
    explicit DeviceZone(const char* zone) {
        ::setenv("TZ", zone, 1);
        ::tzset();
    }
    ~DeviceZone() {
        ::unsetenv("TZ");
        ::tzset();
    }
};

} // namespace

TEST(SaleSummaryPresenters, CountRegularLinesAndAddThePointsOfAllOpenOrders) {
    OrderResponse response;
    response.order = orderOf(largest);
    response.order.regularItems.resize(3);
    response.order.benefitItems.resize(2);
    response.order.totalItems = 9;
    const struct {
        std::optional<OpenOrdersResult> open;
        QString points;
    } cases[] = {
        {openOrders({orderOf(1000), orderOf(500)}), "Puntos en curso: 1500"},
        {openOrders({orderOf(largest - 1), orderOf(1)}), "Puntos en curso: 18446744073709551615"},
        {openOrders({}), "Puntos en curso: 0"},
        {OpenOrdersResult{{}, HttpStatusCodeError{500}, 500}, "Puntos en curso: 0"},
        {std::nullopt, "Puntos en curso: 0"},
    };
    for (const auto& [open, points] : cases) {
        SCOPED_TRACE(points.toStdString());
        const Shown view(present(response, open));
        EXPECT_EQ(view.head().pointsInProgressLabel()->text().plainText(), points);
        EXPECT_EQ(view.order().orderPointsLabel()->text().plainText(),
                  "Puntos del pedido: 18446744073709551615");
        EXPECT_EQ(view.order().totalProductsLabel().plainText(), "Total de productos: 3");
    }
}

TEST(SaleSummaryPresenters, HandPointsBeyondAllNumbersToTheFatalHook) {
    std::vector<std::string> files;
    const auto previous =
        std::exchange(FatalErrorWrapper::fatalErrorClosure,
                      [&](std::string_view, const char* file, unsigned) { files.emplace_back(file); });
    const auto shown = present({}, openOrders({orderOf(largest), orderOf(1), orderOf(1)}));
    FatalErrorWrapper::fatalErrorClosure = previous;
    EXPECT_EQ(files, std::vector<std::string>{"SaleSummarySuccessUseCase.cpp"});
    EXPECT_EQ(shown.headerPresenter.pointsInProgressPresenter.points, largest);
}

TEST(SaleSummaryPresenters, PreferTheCycleOfTheAssociation) {
    const struct {
        std::optional<Cycle> associated;
        std::optional<Cycle> open;
        QString header;
        QString order;
    } cases[] = {
        {cycleOf(202305), cycleOf(202314), "Ciclo actual: 05", "Ciclo del pedido: 05"},
        {std::nullopt, cycleOf(202314), "Ciclo actual: 14", "Ciclo del pedido: 14"},
        {cycleOf(202305), std::nullopt, "Ciclo actual: 05", "Ciclo del pedido: 05"},
        {std::nullopt, std::nullopt, "", ""},
    };
    for (const auto& [associated, open, header, order] : cases) {
        OrderResponse response;
        response.consultant.cycle = associated;
        const Shown view(present(response, openOrders({}, open)));
        EXPECT_EQ(view.head().cycleLabel() ? view.head().cycleLabel()->text().plainText() : QString(),
                  header);
        EXPECT_EQ(view.order().orderCycleLabel().plainText(), order);
        EXPECT_EQ(view.head().cycleStart().isEmpty(), header.isEmpty());
        EXPECT_EQ(view.head().cycleEnd().isEmpty(), header.isEmpty());
    }
}

// Santiago is four hours behind in winter and three in summer; spelled out, so that no zone data is needed.
TEST(SaleSummaryPresenters, ShowTheCyclesDaysInUtcAndTheOrdersInTheDevicesZone) {
    const struct {
        const char* zone;
        const char* created;
        QString day;
    } cases[] = {
        {"<-04>4<-03>,M9.1.6/24,M4.1.6/24", "2023-07-01T03:30:00.000+0000", "30/06/2023"},
        {"<-04>4<-03>,M9.1.6/24,M4.1.6/24", "2023-01-01T03:30:00.000+0000", "01/01/2023"},
        {"<-04>4<-03>,M9.1.6/24,M4.1.6/24", "2023-01-01T02:59:59.999+0000", "31/12/2022"},
        {"<+14>-14", "2023-06-30T23:30:00.000+0000", "01/07/2023"},
        {"UTC0", "2023-06-30T23:30:00.000+0000", "30/06/2023"},
    };
    for (const auto& [zone, created, day] : cases) {
        SCOPED_TRACE(std::string(zone) + " " + created);
        const DeviceZone device(zone);
        OrderResponse response;
        response.consultant.cycle = cycleOf(202305);
        response.order.createdAt = *iso8601Full(created);
        const Shown view(present(response, std::nullopt));
        EXPECT_EQ(view.order().orderDateLabel(), day);
        EXPECT_EQ(view.head().cycleStart(), "Inicio: 01/03/2023");
        EXPECT_EQ(view.head().cycleEnd(), "Cierre: 21/03/2023");
    }
}

} // namespace quillet::testing
