#include "Support/Reading.hpp"

#include <functional>
#include <map>
#include <stdexcept>

namespace quillet::testing {

namespace {

const char* roleOf(const QAccessibleInterface& element) {
    static const std::map<QAccessible::Role, const char*> roles{
        {QAccessible::Heading, "heading"},    {QAccessible::StaticText, "text"},
        {QAccessible::Button, "button"},      {QAccessible::List, "list"},
        {QAccessible::ListItem, "item"},      {QAccessible::Dialog, "dialog"},
        {QAccessible::Pane, "page"},          {QAccessible::PageTab, "tab"},
        {QAccessible::PageTabList, "tabs"},   {QAccessible::Grouping, "group"},
        {QAccessible::Animation, "animation"}};
    const auto found = roles.find(element.role());
    return found == roles.end() ? nullptr : found->second;
}

void walk(QAccessibleInterface& element, const std::function<void(QAccessibleInterface&)>& visit) {
    if (element.state().invisible) {
        return;
    }
    visit(element);
    for (int i = 0; i < element.childCount(); ++i) {
        QAccessibleInterface* const child = element.child(i);
        if (element.indexOfChild(child) != i) {
            throw std::logic_error("an element is not where its parent has it");
        }
        walk(*child, visit);
    }
}

} // namespace

QString reading(const QAccessibleInterface& element) {
    const char* const role = roleOf(element);
    if (!role) {
        return {};
    }
    const QAccessible::State state = element.state();
    QString line = QStringLiteral("%1 \"%2\"").arg(role, element.text(QAccessible::Name));
    const std::pair<bool, const char*> states[] = {
        {state.expandable, state.expanded ? ", open" : ", closed"},
        {state.busy, ", busy"},
        {state.modal, ", modal"},
        {state.selected, ", selected"},
    };
    for (const auto& [holds, word] : states) {
        line += holds ? word : "";
    }
    const QString description = element.text(QAccessible::Description);
    const QString identifier = element.object()->objectName();
    line += description.isEmpty() ? "" : " (" + description + ")";
    line += identifier.isEmpty() ? "" : " #" + identifier;
    return line;
}

QStringList readingOrder(QAccessibleInterface& element) {
    QStringList lines;
    walk(element, [&](const QAccessibleInterface& one) {
        if (const QString line = reading(one); !line.isEmpty()) {
            lines << line;
        }
    });
    return lines;
}

std::vector<QAccessibleInterface*> buttonsOf(QAccessibleInterface& element) {
    std::vector<QAccessibleInterface*> buttons;
    walk(element, [&](QAccessibleInterface& one) {
        if (one.role() == QAccessible::Button) {
            buttons.push_back(&one);
        }
    });
    return buttons;
}

} // namespace quillet::testing
