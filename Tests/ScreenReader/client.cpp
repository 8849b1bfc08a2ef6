// quillet-screen-reader PROGRAM STEP ...: what an assistive program finds in the window of PROGRAM. The steps
// are
//
//   expect FILE  the window becomes what FILE tells, element by element
//   renew FILE   the same, but if it does not become that, FILE is written anew
//   press NAME   presses the element of that name, once there is one
//
// It ends with 1, and tells what there was instead, if a step is not met within its time.
#include <atspi/atspi.h>

#include <chrono>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using Element = std::shared_ptr<AtspiAccessible>;

template <typename T>
std::shared_ptr<T> owned(T* object) {
    return {object, [](T* one) { g_clear_object(&one); }};
}

std::string taken(gchar* text) {
    const std::unique_ptr<gchar, decltype(&g_free)> held(text, g_free);
    return held ? held.get() : "";
}

std::string nameOf(const Element& element) {
    return taken(atspi_accessible_get_name(element.get(), nullptr));
}

/// Each time anew. An element that has gone has neither name nor children.
std::vector<Element> childrenOf(const Element& element) {
    std::vector<Element> children;
    const int count = atspi_accessible_get_child_count(element.get(), nullptr);
    for (int i = 0; i < count; ++i) {
        if (auto child = owned(atspi_accessible_get_child_at_index(element.get(), i, nullptr))) {
            // What was read before may have changed since.
            atspi_accessible_clear_cache(child.get());
            children.push_back(std::move(child));
        }
    }
    return children;
}

std::string statesOf(const Element& element) {
    const auto set = owned(atspi_accessible_get_state_set(element.get()));
    const std::unique_ptr<GArray, decltype(&g_array_unref)> held(atspi_state_set_get_states(set.get()),
                                                                 &g_array_unref);
    auto* const names = static_cast<GEnumClass*>(g_type_class_ref(ATSPI_TYPE_STATE_TYPE));
    std::string states;
    for (guint i = 0; i < held->len; ++i) {
        states += std::string(", ") +
                  g_enum_get_value(names, g_array_index(held.get(), AtspiStateType, i))->value_nick;
    }
    return states;
}

/// The element and all that is in it, each with how deep it lies.
void collect(const Element& element, std::size_t depth, std::vector<std::pair<std::size_t, Element>>& all) {
    all.emplace_back(depth, element);
    for (const Element& child : childrenOf(element)) {
        collect(child, depth + 1, all);
    }
}

/// The windows of the program, and all that is in them.
std::vector<std::pair<std::size_t, Element>> elementsOf(const std::string& program) {
    const Element desktop = owned(atspi_get_desktop(0));
    atspi_accessible_clear_cache(desktop.get());
    std::vector<std::pair<std::size_t, Element>> all;
    for (const Element& one : childrenOf(desktop)) {
        if (nameOf(one) == program) {
            for (const Element& window : childrenOf(one)) {
                collect(window, 0, all);
            }
        }
    }
    return all;
}

std::string textOf(const std::string& program) {
    std::string text;
    for (const auto& [depth, element] : elementsOf(program)) {
        const std::string name = nameOf(element);
        const std::string description = taken(atspi_accessible_get_description(element.get(), nullptr));
        text += std::string(2 * depth, ' ') + taken(atspi_accessible_get_role_name(element.get(), nullptr));
        text += name.empty() ? "" : " \"" + name + '"';
        text += description.empty() ? "" : " (" + description + ')';
        text += statesOf(element) + '\n';
    }
    return text;
}

/// Presses the first element that has this name and can do something, of which a press is the first.
bool press(const std::string& program, const std::string& name) {
    for (const auto& [depth, element] : elementsOf(program)) {
        const auto action = owned(atspi_accessible_get_action_iface(element.get()));
        if (action && nameOf(element) == name) {
            return atspi_action_do_action(action.get(), 0, nullptr) == TRUE;
        }
    }
    return false;
}

/// The bus tells of changes too, but one has to look again for what they were.
bool waitUntil(const std::function<bool()>& condition) {
    for (int looks = 0; looks < 400; ++looks) {
        if (condition()) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return false;
}

bool perform(const std::string& program, const std::string& step, const std::string& object) {
    if (step == "press") {
        return waitUntil([&] { return press(program, object); });
    }
    std::ifstream file(object);
    const std::string expected(std::istreambuf_iterator<char>(file), {});
    const bool isMet = waitUntil([&] { return textOf(program) == expected; });
    if (!isMet && step == "renew") {
        std::ofstream(object) << textOf(program);
    }
    return isMet || step == "renew";
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() % 2 == 0 || atspi_init() != 0) {
        std::cerr << "A program and steps of two words are needed, and an accessibility bus.\n";
        return 2;
    }
    for (std::size_t i = 1; i < words.size(); i += 2) {
        if (!perform(words[0], words[i], words[i + 1])) {
            std::cerr << "Not met: " << words[i] << ' ' << words[i + 1] << ". There is:\n"
                      << textOf(words[0]);
            return 1;
        }
    }
    return 0;
}
