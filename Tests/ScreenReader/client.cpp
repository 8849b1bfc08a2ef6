// quillet-screen-reader PROGRAM STEP ...: what an assistive program finds in the window of PROGRAM. The steps
// are
//
//   expect FILE  the window becomes what FILE tells, element by element
//   renew FILE   writes FILE, once the window has changed no more for a second
//   press NAME   presses the element of that name, once there is one
//
// It ends with 1, and tells what there was instead, if a step is not met within its time.
#include "ScreenReader/Accessible.hpp"

#include <chrono>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <thread>

namespace quillet::testing {

namespace {

using std::chrono::steady_clock;

constexpr auto patience = std::chrono::seconds(20);
constexpr auto stillness = std::chrono::seconds(1);
constexpr auto glance = std::chrono::milliseconds(50);

/// The bus tells of changes too, but one has to look again for what they were.
bool waitUntil(const std::function<bool()>& condition) {
    const auto deadline = steady_clock::now() + patience;
    while (!condition()) {
        if (steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(glance);
    }
    return true;
}

void write(const Accessible& element, const std::string& indent, std::string& text) {
    text += indent + element.role();
    if (const std::string name = element.name(); !name.empty()) {
        text += " \"" + name + '"';
    }
    if (const std::string description = element.description(); !description.empty()) {
        text += " (" + description + ')';
    }
    for (const std::string& state : element.states()) {
        text += ", " + state;
    }
    text += '\n';
    for (const Accessible& child : element.children()) {
        write(child, indent + "  ", text);
    }
}

std::string windowsOf(const std::string& program) {
    std::string text;
    if (const Accessible found = Accessible::program(program)) {
        for (const Accessible& window : found.children()) {
            write(window, "", text);
        }
    }
    return text;
}

bool pressIn(const Accessible& element, const std::string& name) {
    if (element.name() == name && element.press()) {
        return true;
    }
    for (const Accessible& child : element.children()) {
        if (pressIn(child, name)) {
            return true;
        }
    }
    return false;
}

bool expect(const std::string& program, const std::string& path) {
    std::ifstream file(path);
    const std::string expected(std::istreambuf_iterator<char>(file), {});
    std::string found;
    if (waitUntil([&] { return (found = windowsOf(program)) == expected; })) {
        return true;
    }
    std::cerr << "The window is not what " << path << " tells, but:\n" << found;
    return false;
}

bool renew(const std::string& program, const std::string& path) {
    std::string found;
    auto since = steady_clock::now();
    const bool isStill = waitUntil([&] {
        if (const std::string now = windowsOf(program); now.empty() || now != found) {
            found = now;
            since = steady_clock::now();
        }
        return steady_clock::now() - since > stillness;
    });
    if (isStill) {
        std::ofstream(path) << found;
    }
    return isStill;
}

bool press(const std::string& program, const std::string& name) {
    const bool isPressed = waitUntil([&] {
        const Accessible found = Accessible::program(program);
        return found && pressIn(found, name);
    });
    if (!isPressed) {
        std::cerr << "Nothing that can be pressed is called " << name << ", but there is:\n"
                  << windowsOf(program);
    }
    return isPressed;
}

} // namespace

} // namespace quillet::testing

int main(int argc, char** argv) {
    using namespace quillet::testing;
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() % 2 == 0) {
        std::cerr << "quillet-screen-reader takes a program and steps of two words.\n";
        return 2;
    }
    if (atspi_init() != 0) {
        std::cerr << "There is no accessibility bus.\n";
        return 2;
    }
    const std::string& program = words[0];
    for (std::size_t i = 1; i < words.size(); i += 2) {
        const std::string &step = words[i], &object = words[i + 1];
        const auto perform = step == "press" ? press : step == "renew" ? renew : expect;
        if (!perform(program, object)) {
            return 1;
        }
    }
    return 0;
}
