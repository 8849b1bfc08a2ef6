#pragma once

#include "KelDS/KelDS.hpp"

#include <QObject>
#include <QString>

namespace quillet {

/// What a counter row's tag says by its colour.
enum class TagColor { success, alert };

/// A counter row: a text, and its number in a coloured tag.
class TextWithTagView {
    Q_GADGET
    QML_VALUE_TYPE(textWithTagView)
    Q_PROPERTY(QString leftText MEMBER leftText CONSTANT FINAL)
    Q_PROPERTY(QString tagText MEMBER tagText CONSTANT FINAL)
    Q_PROPERTY(int tagLabel READ tagLabel CONSTANT FINAL)

public:
    QString leftText;
    QString tagText;
    TagColor tagColor = TagColor::success;

    /// The tag's colour in the design system.
    [[nodiscard]] kel::KelTagColor::Color tagLabel() const {
        return tagColor == TagColor::success ? kel::KelTagColor::Success : kel::KelTagColor::Alert;
    }
    bool operator==(const TextWithTagView&) const = default;
};

} // namespace quillet
