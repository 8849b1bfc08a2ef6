#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quillet::docs {

/// Each prints one table in Markdown, or one example. They ask the module itself, so that they tell what it
/// does; examples are cut out of tests. `root` is the project's folder.
void printTexts(std::ostream& out);
void printHostTable(std::ostream& out, const std::string& root);
void printHostCode(std::ostream& out, const std::string& root);
void printScreens(std::ostream& out);
void printEvents(std::ostream& out);
void printOutcomes(std::ostream& out);
void printCheckouts(std::ostream& out);
void printErrors(std::ostream& out);
void printErrorCodes(std::ostream& out);
void printDecodingErrors(std::ostream& out);
void printTokenErrors(std::ostream& out);

void printRow(std::ostream& out, const std::vector<std::string>& cells);
void printHead(std::ostream& out, const std::vector<std::string>& cells);

/// What only a person can tell of an error.
struct Told {
    std::string name, meaning, check;
};

/// The values of an enumeration from `first` to `last` that `told` knows. As its switch has no default, no
/// value can be forgotten, and no list of them has to be kept.
template <typename Enum, typename Tell>
std::vector<Enum> valuesBetween(int first, int last, Tell told) {
    std::vector<Enum> values;
    const int step = first < last ? 1 : -1;
    for (int i = first; i != last + step; i += step) {
        if (told(static_cast<Enum>(i))) {
            values.push_back(static_cast<Enum>(i));
        }
    }
    return values;
}

} // namespace quillet::docs
