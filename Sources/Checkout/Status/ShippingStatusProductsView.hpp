#pragma once

// Qt first: its moc cannot read the standard library's <compare>, which the record brings, ahead of
// everything else.
#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include "Checkout/Status/PanelReveal.hpp"
#include "Checkout/Status/ProductsViewFactory.hpp"
#include "Views/Animation/ViewAnimating.hpp"

#include <memory>
#include <optional>
#include <vector>

namespace quillet {

/// Is notified when sections open and close: once for each tap on a section's head, on the main thread.
class ShippingStatusProductsViewDelegate {
public:
    virtual ~ShippingStatusProductsViewDelegate() = default;
    virtual void didExpandProductsSent() = 0;
    virtual void didHideProductsSent() = 0;
    virtual void didExpandProductsNotSent() = 0;
    virtual void didHideProductsNotSent() = 0;
};

/// List model of the two product sections: for each section a head row, and below it one row for each product
/// while the section is open. A row's data is computed when the row becomes visible, so ten thousand products
/// cost no more to show than ten. Sections start open.
///
/// Opening and closing is animated for 200 ms. Only the visible rows take part: the others are inserted after
/// opening and removed before closing. A tap during the animation reverses it. With reduced motion there is
/// no animation. Main thread only.
class ShippingStatusProductsView final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of a ProductsCheckoutStatusView")
    /// How much of the moving section shows, from 0 to 1.
    Q_PROPERTY(double reveal READ reveal NOTIFY revealChanged FINAL)

public:
    enum Role {
        IsHeadRole = Qt::UserRole,
        TitleRole,
        ToneRole,
        StrokeRole,
        FillRole,
        ExpandedRole,
        /// Whether the row is the last of its section.
        LastRole,
        /// Whether the row is the first product of its section.
        FirstRole,
        /// Whether the row is being opened or closed.
        MovingRole,
        /// A ProductRow; an empty one for a section's head.
        ProductRole,
    };

    /// A list that is absent has no section; an empty one has a section without products.
    ShippingStatusProductsView(
        std::optional<ExpansionPanel> shipped, std::optional<ExpansionPanel> unshipped,
        std::shared_ptr<ViewAnimating> viewAnimating = std::make_shared<ViewAnimatingWrapper>());

    void setDelegate(std::weak_ptr<ShippingStatusProductsViewDelegate> delegate);
    [[nodiscard]] std::shared_ptr<ShippingStatusProductsViewDelegate> delegate() const {
        return delegate_.lock();
    }
    /// Adds the sections that are present, the shipped one first. Taps are reported to the delegate from then
    /// on.
    void setup();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    [[nodiscard]] double reveal() const { return reveal_; }
    /// Whether a section is opening or closing.
    [[nodiscard]] bool isMoving() const { return moving_ != nullptr; }

    /// Opens or closes the section whose head is at `row`; other rows are ignored. `rowsInView` is how many
    /// rows below the head there is room for on the screen.
    Q_INVOKABLE void toggle(int row, int rowsInView);

    /// The row of the first head below the given row, or above it; -1 where there is none. -1 stands for the
    /// row before the first, and `rowCount()` for the one after the last.
    [[nodiscard]] Q_INVOKABLE int headBelow(int row) const;
    [[nodiscard]] Q_INVOKABLE int headAbove(int row) const;

    /// Reports the full height of a moving row; other rows are ignored, as is a delegate that a view is still
    /// setting up and that has the index 0 meanwhile.
    Q_INVOKABLE void reportHeight(int row, double height);
    /// Visible height of a moving row when `share` of its section is visible; 0 before its height was
    /// reported.
    [[nodiscard]] Q_INVOKABLE double shownHeight(int row, double share) const;

Q_SIGNALS:
    void revealChanged();

private:
    using Notice = void (ShippingStatusProductsViewDelegate::*)();
    struct Section {
        ExpansionPanel panel;
        Notice didExpand;
        Notice didHide;
        /// How many of the panel's rows are in the list.
        int shown = 0;

        [[nodiscard]] int products() const { return static_cast<int>(panel.content.productViews.size()); }
    };
    struct Position {
        const Section* section;
        /// 0 is the head.
        int row;
    };
    [[nodiscard]] Position position(int row) const;
    [[nodiscard]] int headOf(const Section& section) const;
    /// The index of a row's product in the section that moves.
    [[nodiscard]] std::optional<std::size_t> movingProduct(int row) const;
    void setShown(Section& section, int shown);
    void setReveal(double reveal);
    void move(Section& section);
    void finishMove();

    std::optional<ExpansionPanel> shipped_;
    std::optional<ExpansionPanel> unshipped_;
    std::vector<Section> sections_;
    std::shared_ptr<ViewAnimating> viewAnimating_;
    std::weak_ptr<ShippingStatusProductsViewDelegate> delegate_;
    Section* moving_ = nullptr;
    /// Number of the current animation; callbacks of earlier ones are ignored.
    int moves_ = 0;
    PanelReveal panelReveal_;
    double reveal_ = 1;
};

} // namespace quillet
