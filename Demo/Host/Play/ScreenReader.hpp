#pragma once

#include <QList>
#include <QPointF>
#include <QQuickItem>
#include <QStringList>

#include <optional>

namespace demo {

/// An element of the screen with a text: what a person sees and a screen reader reads.
struct ScreenElement {
    QQuickItem* item = nullptr;
    QString text;
    /// The middle of the element, in the window.
    QPointF center;
    /// In the window, and not under a dialog or an overlay.
    bool visible = false;
    bool enabled = false;

    /// By its text or its identifier.
    [[nodiscard]] bool isCalled(const QString& name) const;
};

/// Reads the phone-sized screen as a person would: what is drawn, not what exists.
class ScreenReader {
public:
    /// `phone` holds the bar and the stack; only the module's own screen is read.
    explicit ScreenReader(QQuickItem& phone) : phone_(phone) {}

    /// All elements of the module's screen in reading order, whether or not they can be seen.
    [[nodiscard]] QList<ScreenElement> elements() const;
    /// The texts that can be seen, in reading order.
    [[nodiscard]] QStringList texts() const;
    [[nodiscard]] bool shows(const QString& text) const;
    /// Whether one of the elements is called so, in view or not.
    [[nodiscard]] bool knows(const QString& name) const;
    /// Whether a tap at this point of the window would reach the item.
    [[nodiscard]] bool reaches(const QQuickItem& item, QPointF point) const;
    /// Whether nothing of the item is cut off or covered, apart from what is larger than the room that it
    /// scrolls in.
    [[nodiscard]] bool isWhollyShown(const QQuickItem& item) const;
    /// What has the keyboard's focus in the window, be it the module's or the host's; nothing if no item has
    /// it. Its text may be empty.
    [[nodiscard]] std::optional<ScreenElement> focus() const;
    /// A visible item of the screen by its object name; null if there is none.
    [[nodiscard]] QQuickItem* named(const QString& objectName) const;
    /// The list or page that scrolls on the module's screen; null if there is none.
    [[nodiscard]] QQuickItem* scrollable() const;

private:
    void collect(QQuickItem& item, bool host, QList<QQuickItem*>& items) const;
    [[nodiscard]] QList<QQuickItem*> items() const;

    QQuickItem& phone_;
};

} // namespace demo
