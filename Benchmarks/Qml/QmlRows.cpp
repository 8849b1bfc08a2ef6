#include "Qml/QmlRows.hpp"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>

namespace quillet::benchmarks {

namespace {

namespace fs = std::filesystem;

std::string textOf(const fs::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator(file), {}};
}

/// The bindings, handlers and functions of a QML file.
struct Functions {
    std::size_t all = 0;
    /// Those that are C++ in the library; the engine interprets the byte code of the others.
    std::size_t compiled = 0;
};

/// Reads what the cache generator made of a file: its byte code as numbers, and a table of C++ functions.
Functions functionsOf(const fs::path& generated) {
    const std::string text = textOf(generated);
    const auto begin = text.find("qmlData alignas(16) [] = {");
    const auto end = text.find("};", begin);
    if (end == std::string::npos) {
        throw std::runtime_error("There is no byte code in " + generated.string() + ".");
    }
    std::vector<std::size_t> bytes;
    for (auto place = text.find("0x", begin); place < end; place = text.find("0x", place + 2)) {
        bytes.push_back(std::stoul(text.substr(place, 4), nullptr, 16));
    }
    // Where the head of a compiled unit has the number of its functions.
    constexpr std::size_t place = 120;
    Functions functions;
    for (std::size_t i = 0; i < 4; ++i) {
        functions.all |= bytes.at(place + i) << (8 * i);
    }
    // The table's last entry is an empty one. From Qt 6.8 on an entry tells its types in a function.
    static const std::regex entry(R"(\{ \d+, (QMetaType|\d+, (\[\]|nullptr)))");
    const auto entries = std::distance(std::sregex_iterator(text.begin(), text.end(), entry), {});
    functions.compiled = static_cast<std::size_t>(entries) - 1;
    if (entries < 1 || functions.compiled > functions.all || functions.all > bytes.size()) {
        throw std::runtime_error("This Qt lays out " + generated.string() + " in another way.");
    }
    return functions;
}

/// The QML files of one library, by its folder below the build's.
struct Library {
    std::size_t files = 0;
    /// Those for which nothing was generated: an engine would have to compile them.
    std::size_t notCompiled = 0;
    Functions functions;
};
void add(Library& library, const fs::path& qmlFolder, const fs::path& buildFolder) {
    std::set<std::string> compiled;
    for (const auto& file : fs::recursive_directory_iterator(buildFolder / ".rcc" / "qmlcache")) {
        const std::string name = file.path().filename();
        if (name.ends_with("_qml.cpp")) {
            compiled.insert(name.substr(0, name.size() - std::string("_qml.cpp").size()) + ".qml");
            const Functions functions = functionsOf(file.path());
            library.functions.all += functions.all;
            library.functions.compiled += functions.compiled;
        }
    }
    static const std::regex qmlFile(R"( (\w+\.qml)\n)");
    const std::string contents = textOf(qmlFolder / "qmldir");
    for (std::sregex_iterator file(contents.begin(), contents.end(), qmlFile), end; file != end; ++file) {
        ++library.files;
        library.notCompiled += !compiled.contains((*file)[1]);
    }
    if (library.files == 0) {
        throw std::runtime_error("There is no QML in " + qmlFolder.string() + ".");
    }
}

double share(const Functions& functions) {
    return 100.0 * static_cast<double>(functions.compiled) / static_cast<double>(functions.all);
}

} // namespace

std::vector<Row> qmlRows(const Options& /*options*/) {
    const fs::path build = QUILLET_BUILD_FOLDER;
    Library module;
    add(module, build / "qml" / "Quillet", build / "Sources");
    add(module, build / "qml" / "Quillet" / "Screens", build / "Platform");
    Library controls;
    add(controls, build / "qml" / "KelDS", build / "Kel" / "KelDS");

    Row files =
        plainRow("18 QML files compiled at run time", "", static_cast<double>(module.notCompiled), atMost(0));
    files.remark = "of " + std::to_string(module.files);
    Row bindings = plainRow("18 bindings compiled to C++", "%", share(module.functions), atLeast(80));
    bindings.remark = std::to_string(module.functions.compiled) + " of " +
                      std::to_string(module.functions.all) + "; of the design system's " +
                      shortFigure(share(controls.functions)) + " %";
    return {files, bindings};
}

} // namespace quillet::benchmarks
