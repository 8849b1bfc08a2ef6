#pragma once

#include <QAbstractListModel>

#include <vector>

namespace quillet {
class ShippingStatusProductsView;
} // namespace quillet

namespace quillet::benchmarks {

/// The texts of a result's product rows, worded beforehand: the plainest model that a list of them can have.
class PlainProducts final : public QAbstractListModel {
public:
    /// Copies the texts of all products that the sections show; heads are left out.
    explicit PlainProducts(const ShippingStatusProductsView& sections);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    enum Role { Quantity = Qt::UserRole, Description, Code, Points, HasReason };
    struct Texts {
        QString quantity, description, code, points;
        bool hasReason;
    };
    std::vector<Texts> rows_;
};

} // namespace quillet::benchmarks
