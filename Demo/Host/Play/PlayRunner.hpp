#pragma once

#include "HostApplication.hpp"
#include "Play/Hands.hpp"
#include "Play/Keyboard.hpp"
#include "Play/PlayScript.hpp"
#include "Play/Stage.hpp"
#include "Sandbox/NetworkSwitch.hpp"

#include <QJsonObject>
#include <QString>

namespace demo {

/// Runs plays on the host's window as a person would: it looks, waits and taps, and never calls into the
/// module.
class PlayRunner {
public:
    /// `shots` is the folder for the pictures; the appearance is the one that each play begins with.
    PlayRunner(HostApplication& host, Journal& journal, NetworkSwitch& network, const Appearance& appearance,
               QString shots);

    /// Runs a play in a nested event loop, until its end or the first step that fails, and returns its part
    /// of the report, with "ok". Screens that the play opened are removed at its end.
    [[nodiscard]] QJsonObject run(const PlayScript& play);

private:
    /// Why the step fails; empty if it passed.
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
    [[nodiscard]] QString perform(const steps::Size& step);
    [[nodiscard]] QString perform(const steps::Theme& step);
    [[nodiscard]] QString perform(const steps::TextScale& step);
    [[nodiscard]] QString perform(const steps::Motion& step);
    [[nodiscard]] QString perform(const steps::Direction& step);
    [[nodiscard]] QString perform(const steps::Insets& step);
    [[nodiscard]] QString perform(const steps::Press& step);
    [[nodiscard]] QString perform(const steps::Focused& step);

    /// As the process was started, and as each play begins.
    void restore();
    /// Taps a part of the dialog, or presses Escape for the key. Returns why it fails, as above.
    [[nodiscard]] QString answerDialog(const QString& part, QPointF (*where)(const QQuickItem&), Device by);
    bool tapHere(const steps::Tap& step);
    void scrollTowards(const QString& name);

    HostApplication& host_;
    Journal& journal_;
    NetworkSwitch& network_;
    QString shots_;
    Appearance appearance_;
    /// Of the phone-sized area at the start of each play.
    QSize size_;
    Stage stage_;
    const ScreenReader& reader_;
    Hands hands_;
    Keyboard keyboard_;
    bool hasOpened_ = false;
};

} // namespace demo
