#pragma once

#include <QQuickItem>

namespace demo {

/// Scrolls a page or a list, whose ends are estimates until their rows have been made.
class Scroller {
public:
    explicit Scroller(QQuickItem& page) : page_(page) {}

    /// Scrolls to the end or the start. Returns whether it was there already.
    bool toEdge(bool end);
    /// Scrolls down by most of a screen, and from the end back to the start.
    void onwards();
    /// Scrolls so that this y of the window comes to the middle of the page, as far as possible.
    void toMiddle(double sceneY);

private:
    [[nodiscard]] double first() const;
    [[nodiscard]] double last() const;
    [[nodiscard]] double here() const;
    void go(double contentY);

    QQuickItem& page_;
};

} // namespace demo
