#pragma once

#include <atspi/atspi.h>

#include <memory>
#include <string>
#include <vector>

namespace quillet::testing {

/// What an assistive program sees of one element of another program, over the accessibility bus. Each
/// function asks anew. An element that has gone has no name, no states and no children.
class Accessible {
public:
    /// The program of this name; null in front of what it has not shown yet.
    static Accessible program(const std::string& name);

    [[nodiscard]] explicit operator bool() const { return object_ != nullptr; }
    [[nodiscard]] std::string role() const;
    [[nodiscard]] std::string name() const;
    [[nodiscard]] std::string description() const;
    /// Those that a person is told of, in a fixed order.
    [[nodiscard]] std::vector<std::string> states() const;
    [[nodiscard]] std::vector<Accessible> children() const;
    /// Whether the element can be pressed; if so, it has been.
    [[nodiscard]] bool press() const;

private:
    explicit Accessible(AtspiAccessible* object);

    std::shared_ptr<AtspiAccessible> object_;
};

} // namespace quillet::testing
