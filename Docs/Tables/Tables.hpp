#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quillet::docs {

/// Each prints one table in Markdown. They ask the module itself, so that they tell what it does.
void printTexts(std::ostream& out, const std::string& folder);
void printScreens(std::ostream& out);
void printEvents(std::ostream& out);
void printOutcomes(std::ostream& out);
void printErrorCodes(std::ostream& out);

void printRow(std::ostream& out, const std::vector<std::string>& cells);
void printHead(std::ostream& out, const std::vector<std::string>& cells);

} // namespace quillet::docs
