#pragma once

#include "HostApplication.hpp"
#include "Play/Hands.hpp"
#include "Play/PlayScript.hpp"
#include "Play/ScreenReader.hpp"
#include "Sandbox/NetworkSwitch.hpp"

#include <QJsonObject>
#include <QString>

#include <functional>
#include <memory>

namespace demo {

/// Plays plays on the host's window, as a person would: it looks, waits and taps; it never calls into the
/// module.
class PlayRunner {
public:
    /// `shots` is the folder that takes the pictures.
    PlayRunner(HostApplication& host, Journal& journal, NetworkSwitch& network, QString shots);

    /// Runs a play in a nested event loop, until its end or the first step that is not met, and returns its
    /// part of the report, with "ok". What the play opened is taken away at its end.
    [[nodiscard]] QJsonObject run(const PlayScript& play);

private:
    /// What is missing for the step to be met; empty if nothing is.
    [[nodiscard]] QString perform(const Step& step);
    [[nodiscard]] QString perform(const steps::Open& step);
    [[nodiscard]] QString perform(const steps::Handmade& step);
    [[nodiscard]] QString perform(const steps::Language& step);
    [[nodiscard]] QString perform(const steps::Close& step);
    [[nodiscard]] QString perform(const steps::Tap& step);
    [[nodiscard]] QString perform(const steps::Expect& step);
    [[nodiscard]] QString perform(const steps::Absent& step);
    [[nodiscard]] QString perform(const steps::Title& step);
    [[nodiscard]] QString perform(const steps::Background& step);
    [[nodiscard]] QString perform(const steps::CloseIcon& step);
    [[nodiscard]] QString perform(const steps::Scroll& step);
    [[nodiscard]] QString perform(const steps::Back& step);
    [[nodiscard]] QString perform(const steps::Shot& step);
    [[nodiscard]] QString perform(const steps::Network& step);

    /// Lets time pass until `done`, at the most `longest`, looking every `glance`; whether it came to that.
    bool wait(std::chrono::milliseconds longest, const std::function<bool()>& done,
              std::chrono::milliseconds glance = std::chrono::milliseconds(20));
    /// Taps a part of the dialog, or presses Escape where the key is to do it; what is missing, as above.
    [[nodiscard]] QString answerDialog(const QString& part, QPointF (*where)(const QQuickItem&), Device by);
    bool tapHere(const steps::Tap& step);
    void scrollTowards(const QString& name);
    [[nodiscard]] QString title() const;
    /// Neither a page nor a dialog is on its way in or out.
    [[nodiscard]] bool settled() const;

    HostApplication& host_;
    Journal& journal_;
    NetworkSwitch& network_;
    QString shots_;
    ScreenReader reader_;
    Hands hands_;
    bool hasOpened_ = false;
};

} // namespace demo
