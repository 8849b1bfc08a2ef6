#pragma once

#include "Support/ModuleTest.hpp"

namespace quillet::testing {

/// Something that can be tapped, and all that comes of it; or, with nothing to tap, a wait for the last of
/// the requests.
struct Target {
    const char* name;
    /// Where the sample's answers are not the ones.
    std::vector<std::pair<Call, std::deque<Reply>>> replies;
    /// Clicked until then.
    std::vector<QString> clicks;
    QString tapped;
    std::vector<std::string> lines;
    std::size_t requests;
    /// Whether every tap counts, each with the next line.
    bool isSwitch = false;
    /// Whether a port that says nothing takes the back end's place.
    bool isOverTheNetwork = false;
};

/// Tests that do something at each place where a person can.
struct AtTargets : ModuleTest {
    [[nodiscard]] std::vector<Target> targets() const;
    [[nodiscard]] Target target(const std::string& name) const;
    /// Goes there, with a back end of its own, and with a stage and a host where there is none.
    void reach(const Target& target);
    /// Of a dialog's background the middle lies under its card.
    [[nodiscard]] QPointF place(const QString& tapped) const;

    const QString background = "dialogBackground";
    const QString section = "Productos enviados";
};

} // namespace quillet::testing
