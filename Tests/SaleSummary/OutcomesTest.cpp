#include "SaleSummary/Fakes.hpp"
#include "SaleSummary/UseCases/SaleSummaryUseCaseFactory.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <ostream>

namespace quillet::testing {

namespace {

using Lines = std::vector<std::string>;

/// What an outcome shows, and what a tap on its button, background and close icon does; a try-again view has
/// its button only.
struct Outcome {
    const char* name;
    OrderResult association;
    Lines tracked;
    Lines shown;
    std::vector<Lines> taps;

    friend void PrintTo(const Outcome& outcome, std::ostream* stream) { *stream << outcome.name; }
};

const auto closeEvent = event("Register Order", "Close");

std::vector<Outcome> outcomes() {
    return {
        {"success",
         {OrderResponse{}, {}, 200},
         {event("Register Order", "Deep Linking")},
         {"content", event("Register Order", "Deep Linking"),
          "dialog: no icon | ¡Pedido del cliente registrado y con estatus en curso! | El pedido enviado por "
          "WhatsApp, fue registrado con éxito. | Ver Pedidos"},
         {{event("Register Order", "View Orders")}, {}, {closeEvent}}},
        {"other registered order",
         {{}, refusal("ERROR_CART_OTHER_CONSULTANT"), 422},
         {},
         {"dialog: other_consultant | ¡Otra consultora registró el pedido antes! | Si quieres agregar los "
          "productos al carrito, pide a tu cliente que acceda nuevamente a la revista digital interactiva y "
          "cree un nuevo pedido. | Compartir revista"},
         {{event("Register Order", "Share Magazine"), "navigateToShareMagazine"},
          {"navigateToHome"},
          {closeEvent, "navigateToHome"}}},
        {"already submitted",
         {{}, refusal("ERROR_CART_ALREADY_SUBMITTED"), 422},
         {},
         {"dialog: cart_already_submitted | "},
         {{"navigateToHome"}, {"navigateToHome"}, {closeEvent, "navigateToHome"}}},
        {"time-out",
         {{}, {}, 504},
         {"screen Error"},
         {"screen Error",
          "try again: surprise_face | Lo sentimos, algo salió mal | Actualizar | Botón actualizar"},
         {{"removeTryAgainView", "tryAgainDoRequests"}}},
        {"no connection",
         {{}, transportError(platform::URLError::Code::notConnectedToInternet), 0},
         {"screen Error"},
         {"screen Error", "try again: surprise_face | Lo sentimos, tu dispositivo está sin conexión a "
                          "internet | Actualizar | Botón actualizar"},
         {{"removeTryAgainView", "tryAgainDoRequests"}}},
        {"generic error",
         {{}, HttpStatusCodeError{500}, 500},
         {"screen Error"},
         {"screen Error",
          "try again: sad_face | Lo sentimos, pero esta información ya no está disponible. | "},
         {{"navigateToHome"}}},
    };
}

struct SaleSummaryOutcomes : ::testing::TestWithParam<Outcome> {
    void show() {
        const auto useCases = SaleSummaryUseCaseFactory().createAllUseCases(
            {screen, shared(GetParam().association), nullptr, std::make_shared<RecordingAnalytics>(log)});
        const auto& chosen =
            *std::ranges::find_if(useCases, [](const auto& useCase) { return useCase->canShowContent(); });
        chosen->showContent();
    }

    /// The actions outlive the use case that made them, and the screen if the test destroys it.
    std::vector<std::function<void()>> tappables() {
        if (const auto tryAgain = screen->tryAgain) {
            return {[tryAgain] { tryAgain->tap(); }};
        }
        const DialogActions& dialog = screen->dialog;
        return {dialog.didTapButton, dialog.didTapBackgroundView, dialog.didTapCloseIcon};
    }

    void expectEachTap(const std::function<bool(const std::string&)>& remains) {
        const auto taps = tappables();
        ASSERT_EQ(taps.size(), GetParam().taps.size());
        for (std::size_t i = 0; i < taps.size(); ++i) {
            Lines expected;
            std::ranges::copy_if(GetParam().taps[i], std::back_inserter(expected), remains);
            taps[i]();
            EXPECT_EQ(taken(log), expected) << "tap " << i;
        }
    }

    Log log = makeLog();
    std::shared_ptr<RecordingNavigation> host = std::make_shared<RecordingNavigation>(log);
    std::shared_ptr<FakeSaleSummaryScreen> screen = std::make_shared<FakeSaleSummaryScreen>(log, host);
};

} // namespace

TEST_P(SaleSummaryOutcomes, ShowTheirTextsAndAnswerEachTap) {
    show();
    const Lines shown = taken(log);
    ASSERT_EQ(shown.size(), GetParam().shown.size());
    for (std::size_t i = 0; i < shown.size(); ++i) {
        EXPECT_THAT(shown[i], ::testing::StartsWith(GetParam().shown[i]));
    }
    expectEachTap([](const std::string&) { return true; });
}

TEST_P(SaleSummaryOutcomes, NavigateNowhereWithoutAHost) {
    show();
    log->clear();
    host.reset();
    expectEachTap([](const std::string& line) { return !line.starts_with("navigate"); });
}

TEST_P(SaleSummaryOutcomes, TrackButShowNothingWithoutAScreen) {
    screen.reset();
    show();
    EXPECT_EQ(taken(log), GetParam().tracked);
}

TEST_P(SaleSummaryOutcomes, OnlyTrackTheTapsOnAScreenThatHasGone) {
    show();
    log->clear();
    const auto taps = tappables();
    screen.reset();
    for (std::size_t i = 0; i < taps.size(); ++i) {
        taps[i]();
        for (const std::string& line : taken(log)) {
            EXPECT_THAT(line, ::testing::StartsWith("event "));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, SaleSummaryOutcomes, ::testing::ValuesIn(outcomes()), [](const auto& outcome) {
    std::string name = outcome.param.name;
    std::ranges::replace_if(
        name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
});

} // namespace quillet::testing
