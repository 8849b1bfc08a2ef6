#pragma once

#include <QAccessible>
#include <QStringList>

#include <vector>

namespace quillet::testing {

/// One element as a screen reader tells of it: role, name, states, description in brackets, and after a "#"
/// what automation finds it by. Empty for what has no role that a person would hear of.
[[nodiscard]] QString reading(const QAccessibleInterface& element);

/// This element and all below it, in the order in which a screen reader goes through them.
[[nodiscard]] QStringList readingOrder(QAccessibleInterface& element);

/// Those of them that are buttons.
[[nodiscard]] std::vector<QAccessibleInterface*> buttonsOf(QAccessibleInterface& element);

} // namespace quillet::testing
