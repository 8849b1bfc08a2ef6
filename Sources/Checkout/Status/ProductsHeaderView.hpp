#pragma once

#include <QList>
#include <QObject>
#include <QString>

namespace quillet {

/// What a counter row's tag says by its colour.
enum class TagColor { success, alert };

/// A counter row: a text, and its number in a coloured tag.
class TextWithTagView {
    Q_GADGET
    Q_PROPERTY(QString leftText MEMBER leftText CONSTANT FINAL)
    Q_PROPERTY(QString tagText MEMBER tagText CONSTANT FINAL)
    Q_PROPERTY(bool alert READ isAlert CONSTANT FINAL)

public:
    QString leftText;
    QString tagText;
    TagColor tagColor = TagColor::success;

    [[nodiscard]] bool isAlert() const { return tagColor == TagColor::alert; }
    bool operator==(const TextWithTagView&) const = default;
};

/// Which icon a result shows.
enum class IconStatus { productsSuccess, productsFailure, warning };

/// The card at the top of a result: icon, main message and counter rows.
struct ProductsHeaderView {
    IconStatus icon = IconStatus::productsSuccess;
    QString mainMessage;
    QList<TextWithTagView> textWithTagViews;
};

} // namespace quillet
