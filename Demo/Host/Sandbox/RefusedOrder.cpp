#include "Sandbox/RefusedOrder.hpp"

#include "KelCommon/KelAnalyticsManager.hpp"
#include "Quillet/Platform/MainQueue.hpp"
#include "SaleSummary/Screen/SaleSummaryViewController.hpp"
#include "SaleSummary/UseCases/SaleSummaryUseCaseFactory.hpp"
#include "SaleSummary/ViewModel/SaleSummaryViewModel.hpp"

namespace demo {

namespace {

/// Answers each run at once, through the main queue, with the result given at construction.
class HandmadeWorker final : public quillet::Executable {
public:
    explicit HandmadeWorker(std::function<void()> answer) : answer_(std::move(answer)) {}
    [[nodiscard]] bool isFinishedSuccessfully() const override { return false; }
    void execute() override { quillet::platform::mainQueue().async(answer_); }

private:
    std::function<void()> answer_;
};

/// There is nothing to send from this screen.
class NoRouter final : public quillet::SaleSummaryRoutering {
public:
    void showCheckout(const quillet::ViewController*) override {}
};

std::shared_ptr<const quillet::OrderResult> refusal(const std::string& code) {
    constexpr int unprocessable = 422;
    const quillet::HttpErrorResponse response{unprocessable, code, "Unprocessable Entity"};
    return std::make_shared<const quillet::OrderResult>(quillet::OrderResult{
        std::nullopt, quillet::ServerError{{response, unprocessable, code}, unprocessable, "/"},
        unprocessable});
}

} // namespace

std::shared_ptr<quillet::platform::QuickViewController>
refusedOrderScreen(const std::string& code,
                   const std::weak_ptr<quillet::QuilletNavigationDelegate>& navigation) {
    const auto receiver = std::make_shared<std::weak_ptr<quillet::SaleSummaryViewModel>>();
    const auto answer = [receiver](auto deliver) {
        return std::make_shared<HandmadeWorker>([receiver, deliver] {
            if (const auto viewModel = receiver->lock()) {
                deliver(*viewModel);
            }
        });
    };
    const auto viewModel = std::make_shared<quillet::SaleSummaryViewModel>(
        kel::KelAnalyticsManager::shared(),
        answer([result = refusal(code)](quillet::SaleSummaryViewModel& to) { to.didAssociate(result); }),
        answer([](quillet::SaleSummaryViewModel& to) {
            to.didGetOpenOrders(std::make_shared<const quillet::OpenOrdersResult>());
        }),
        std::make_unique<quillet::SaleSummaryUseCaseFactory>());
    auto screen = std::make_shared<quillet::SaleSummaryViewController>(
        viewModel, std::make_unique<quillet::Colors>(), std::make_unique<NoRouter>(),
        std::make_unique<quillet::ViewControllerWrapperFactory>(),
        std::make_unique<quillet::SaleSummaryViewFactory>(), navigation,
        std::make_unique<quillet::DialogFactory>(), std::make_unique<quillet::TryAgainFactory>());
    *receiver = screen->wayBackTo(*viewModel);
    viewModel->setDelegate(screen->wayBackTo(*screen));
    return screen;
}

} // namespace demo
