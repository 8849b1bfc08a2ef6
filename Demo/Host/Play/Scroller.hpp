#pragma once

#include <QQuickItem>

namespace demo {

/// Scrolls a page or a list, whose ends are estimates until their rows have been made.
class Scroller {
public:
    explicit Scroller(QQuickItem& page) : page_(page) {}

    /// Goes to the end, or to the start; whether it was there already.
    bool toEdge(bool end);
    /// Goes down by most of a screen, and at the end back to the start.
    void onwards();
    /// Brings this height of the window into the middle of the page, as far as it goes.
    void toMiddle(double sceneY);

private:
    [[nodiscard]] double first() const;
    [[nodiscard]] double last() const;
    [[nodiscard]] double here() const;
    void go(double contentY);

    QQuickItem& page_;
};

} // namespace demo
