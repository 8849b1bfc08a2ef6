#include "ScreenReader/Accessible.hpp"

namespace quillet::testing {

namespace {

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }
};

template <typename T>
using Ref = std::unique_ptr<T, Unref>;

std::string taken(gchar* text) {
    const std::unique_ptr<gchar, decltype(&g_free)> owned(text, g_free);
    return owned ? owned.get() : "";
}

} // namespace

Accessible::Accessible(AtspiAccessible* object) {
    if (object) {
        object_.reset(object, Unref());
        // What was read before may have changed since.
        atspi_accessible_clear_cache(object);
    }
}

Accessible Accessible::program(const std::string& name) {
    for (const Accessible& program : Accessible(atspi_get_desktop(0)).children()) {
        if (program.name() == name) {
            return program;
        }
    }
    return Accessible(nullptr);
}

std::string Accessible::role() const {
    return taken(atspi_accessible_get_role_name(object_.get(), nullptr));
}

std::string Accessible::name() const {
    return taken(atspi_accessible_get_name(object_.get(), nullptr));
}

std::string Accessible::description() const {
    return taken(atspi_accessible_get_description(object_.get(), nullptr));
}

std::vector<std::string> Accessible::states() const {
    static const struct {
        AtspiStateType state;
        bool told;
        const char* name;
    } known[] = {
        // clang-format off
        {ATSPI_STATE_FOCUSED, true, "focused"},
        {ATSPI_STATE_EXPANDABLE, true, "expandable"},
        {ATSPI_STATE_EXPANDED, true, "expanded"},
        {ATSPI_STATE_SELECTED, true, "selected"},
        {ATSPI_STATE_CHECKED, true, "checked"},
        {ATSPI_STATE_PRESSED, true, "pressed"},
        {ATSPI_STATE_BUSY, true, "busy"},
        {ATSPI_STATE_MODAL, true, "modal"},
        {ATSPI_STATE_ENABLED, false, "disabled"},
        {ATSPI_STATE_SHOWING, false, "hidden"},
        // clang-format on
    };
    const Ref<AtspiStateSet> set(atspi_accessible_get_state_set(object_.get()));
    std::vector<std::string> states;
    for (const auto& [state, told, name] : known) {
        if (set && (atspi_state_set_contains(set.get(), state) == TRUE) == told) {
            states.emplace_back(name);
        }
    }
    return states;
}

std::vector<Accessible> Accessible::children() const {
    std::vector<Accessible> children;
    const int count = atspi_accessible_get_child_count(object_.get(), nullptr);
    for (int i = 0; i < count; ++i) {
        const Accessible child(atspi_accessible_get_child_at_index(object_.get(), i, nullptr));
        if (child) {
            children.push_back(child);
        }
    }
    return children;
}

bool Accessible::press() const {
    const Ref<AtspiAction> action(atspi_accessible_get_action_iface(object_.get()));
    const int count = action ? atspi_action_get_n_actions(action.get(), nullptr) : 0;
    for (int i = 0; i < count; ++i) {
        if (taken(atspi_action_get_action_name(action.get(), i, nullptr)) == "Press") {
            return atspi_action_do_action(action.get(), i, nullptr) == TRUE;
        }
    }
    return false;
}

} // namespace quillet::testing
