// doc-tables TABLE FOLDER-OF-TEXTS: prints one of the tables that Docs holds.
#include "Tables.hpp"

#include "KelCommon/KelCommon.hpp"

#include <functional>
#include <iostream>
#include <map>

namespace quillet::docs {

void printRow(std::ostream& out, const std::vector<std::string>& cells) {
    for (const std::string& cell : cells) {
        out << "| " << cell << ' ';
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
        {"texts", [&] { printTexts(std::cout, argv[2]); }}, {"screens", [] { printScreens(std::cout); }},
        {"events", [] { printEvents(std::cout); }},         {"outcomes", [] { printOutcomes(std::cout); }},
        {"codes", [] { printErrorCodes(std::cout); }},
    };
    const auto table = argc == 3 ? tables.find(argv[1]) : tables.end();
    if (table == tables.end()) {
        std::cerr << "doc-tables texts|screens|events|outcomes|codes FOLDER-OF-TEXTS\n";
        return 2;
    }
    kel::setLanguage("es");
    table->second();
}
