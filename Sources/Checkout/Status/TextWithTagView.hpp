#pragma once

#include "KelDS/KelTokens.hpp"

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
    Q_PROPERTY(int tagColorIndex READ tagColorIndex CONSTANT FINAL)

public:
    QString leftText;
    QString tagText;
    TagColor tagColor = TagColor::success;

    /// The design system's index of the tag's colour.
    [[nodiscard]] int tagColorIndex() const {
        return int(tagColor == TagColor::success ? kel::KelTagColor::success : kel::KelTagColor::alert);
    }
    bool operator==(const TextWithTagView&) const = default;
};

} // namespace quillet
