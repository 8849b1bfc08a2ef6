#include "Models/RecordFields.hpp"
#include "Quillet/FatalErrorWrapper.hpp"
#include "Quillet/Testing/RecordingHost.hpp"
#include "SaleSummary/Screen/HighlightedOrderView.hpp"
#include "SaleSummary/UseCases/SaleSummarySuccessUseCase.hpp"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>

namespace quillet::testing {

TEST(SaleSummaryPresenters, HandPointsBeyondAllNumbersToTheFatalHook) {
    constexpr auto largest = std::numeric_limits<std::uint64_t>::max();
    std::vector<std::string> files;
    const auto previous =
        std::exchange(FatalErrorWrapper::fatalErrorClosure,
                      [&](std::string_view, const char* file, unsigned) { files.emplace_back(file); });
    OpenOrdersResponse open;
    for (const std::uint64_t points : {largest, std::uint64_t{1}, std::uint64_t{1}}) {
        open.openOrders.emplace_back().totalPoints = points;
    }
    const auto presenter = SaleSummarySuccessUseCase(
                               {}, std::make_shared<const OrderResult>(OrderResult{OrderResponse{}, {}, 200}),
                               std::make_shared<const OpenOrdersResult>(OpenOrdersResult{open, {}, 200}),
                               std::make_shared<RecordingAnalytics>(makeLog()))
                               .createPresenter({});
    FatalErrorWrapper::fatalErrorClosure = previous;
    EXPECT_EQ(files, std::vector<std::string>{"SaleSummarySuccessUseCase.cpp"});
    EXPECT_EQ(presenter.headerPresenter.pointsInProgressPresenter.points, largest);
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
    };
    const CyclePeriodPresenter period{*iso8601Full("2023-03-01T00:00:00.000+0000"),
                                      *iso8601Full("2023-03-21T23:59:59.000+0000")};
    for (const auto& [zone, created, day] : cases) {
        SCOPED_TRACE(std::string(zone) + " " + created);
        qputenv("TZ", zone);
        ::tzset();
        const HighlightedOrderView order({OrderPointsPresenter(0), {}, *iso8601Full(created), 0});
        EXPECT_EQ(order.orderDateLabel(), day);
        EXPECT_EQ(period.startText(), "Inicio: 01/03/2023");
        EXPECT_EQ(period.endText(), "Cierre: 21/03/2023");
    }
    qunsetenv("TZ");
    ::tzset();
}

} // namespace quillet::testing
