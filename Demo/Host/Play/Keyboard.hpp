#pragma once

#include "Play/Hands.hpp"
#include "Play/Stage.hpp"

#include <QString>

namespace demo {

/// Goes about the window by nothing but the Tab key. Main thread only.
class Keyboard {
public:
    Keyboard(Hands& hands, const Stage& stage) : hands_(hands), stage_(stage) {}

    /// Waits for an element that is called so, goes there by Tab, and presses Return. Returns why it does not
    /// come to that; empty if it does. It gives up where the focus comes round, and after sixty presses.
    [[nodiscard]] QString enter(const QString& name);
    /// Why the focus is not on an element that is called so and in view; empty if it is.
    [[nodiscard]] QString notAt(const QString& name) const;

private:
    [[nodiscard]] QString tabTo(const QString& name);

    Hands& hands_;
    const Stage& stage_;
};

} // namespace demo
