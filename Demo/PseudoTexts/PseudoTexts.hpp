#pragma once

namespace demo {

/// Gives the module and the design system texts in two languages that nobody speaks, for those who look for
/// texts that are cut off, not in a table or laid out in one direction only: "xa" is English with accents and
/// longer, "xb" is written from right to left. A host calls it before it shows anything.
void usePseudoTexts();

} // namespace demo
