#pragma once

// Qt first: its moc cannot read the standard library's <compare>, which the record brings, ahead of
// everything else.
#include <QAbstractListModel>

#include "Models/Product.hpp"

#include <memory>
#include <optional>
#include <vector>

namespace quillet {

/// Hears of sections that open and close. Main thread only; once for each tap on a section's head.
class ShippingStatusProductsViewDelegate {
public:
    virtual ~ShippingStatusProductsViewDelegate() = default;
    virtual void didExpandProductsSent() = 0;
    virtual void didHideProductsSent() = 0;
    virtual void didExpandProductsNotSent() = 0;
    virtual void didHideProductsNotSent() = 0;
};

/// The two sections of products, flattened into the rows of one list: a section's head, and below it a row a
/// product while it is open. A row's values are worked out when it comes into view, so ten thousand products
/// cost no more to show than ten. Sections start open. Main thread only.
class ShippingStatusProductsView final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        IsHeadRole = Qt::UserRole,
        TitleRole,
        SentRole,
        ExpandedRole,
        /// Whether the row is the last of its section.
        LastRole,
        /// Whether the row is the first product of its section.
        FirstRole,
        QuantityRole,
        DescriptionRole,
        CodeRole,
        PointsRole,
        HasReasonRole,
    };

    /// A list that is absent has no section; an empty one has a section without products.
    ShippingStatusProductsView(std::optional<std::vector<Product>> shipped,
                               std::optional<std::vector<Product>> unshipped);

    void setDelegate(std::weak_ptr<ShippingStatusProductsViewDelegate> delegate);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Opens or closes the section whose head is at `row`; other rows are ignored.
    Q_INVOKABLE void toggle(int row);

private:
    struct Section {
        bool sent;
        std::vector<Product> products;
        bool expanded = true;

        [[nodiscard]] int rows() const { return 1 + (expanded ? static_cast<int>(products.size()) : 0); }
    };
    struct Position {
        const Section* section;
        /// 0 is the head.
        int row;
    };
    [[nodiscard]] Position position(int row) const;
    [[nodiscard]] static QVariant headData(const Section& section, int role);
    [[nodiscard]] static QVariant productData(const Section& section, const Product& product, int role);
    void notify(const Section& section) const;

    std::vector<Section> sections_;
    std::weak_ptr<ShippingStatusProductsViewDelegate> delegate_;
};

} // namespace quillet
