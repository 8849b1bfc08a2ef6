// quillet-doc-tables TABLE ROOT: prints one of the tables and examples of Docs. ROOT is the project's folder.
#include "Tables.hpp"

#include "KelCommon/KelCommon.hpp"

#include <algorithm>
#include <functional>
#include <iostream>
#include <map>

namespace quillet::docs {

void printRow(std::ostream& out, const std::vector<std::string>& cells) {
    for (std::string cell : cells) {
        // Bars end a cell and line feeds a row.
        std::ranges::replace(cell, '|', '/');
        cell.erase(cell.find_last_not_of(" \n") + 1);
        for (std::size_t at = 0; (at = cell.find('\n', at)) != std::string::npos;) {
            cell.replace(at, 1, " / ");
        }
        out << "| " << cell << (cell.empty() ? "" : " ");
    }
    out << "|\n";
}

void printHead(std::ostream& out, const std::vector<std::string>& cells) {
    printRow(out, cells);
    printRow(out, std::vector<std::string>(cells.size(), "---"));
}

} // namespace quillet::docs

int main(int argc, char** argv) {
    using namespace quillet::docs;
    const std::map<std::string, std::function<void()>> tables{
        {"texts", [] { printTexts(std::cout); }},
        {"host-table", [&] { printHostTable(std::cout, argv[2]); }},
        {"host-code", [&] { printHostCode(std::cout, argv[2]); }},
        {"screens", [] { printScreens(std::cout); }},
        {"events", [] { printEvents(std::cout); }},
        {"outcomes", [] { printOutcomes(std::cout); }},
        {"checkouts", [] { printCheckouts(std::cout); }},
        {"errors", [] { printErrors(std::cout); }},
        {"codes", [] { printErrorCodes(std::cout); }},
        {"decoding", [] { printDecodingErrors(std::cout); }},
        {"token", [] { printTokenErrors(std::cout); }},
    };
    const auto table = argc == 3 ? tables.find(argv[1]) : tables.end();
    if (table == tables.end()) {
        std::cerr << "quillet-doc-tables TABLE ROOT, where TABLE is one of:";
        for (const auto& [name, print] : tables) {
            std::cerr << ' ' << name;
        }
        std::cerr << '\n';
        return 2;
    }
    kel::setLanguage("es");
    table->second();
}
