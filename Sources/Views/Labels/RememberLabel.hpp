#pragma once

#include "Views/Tokens/Coloring.hpp"
#include "Views/Tokens/FontsCreating.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quillet {

/// The reminder at the end of a page, one text in two runs: the word for "remember" with a colon, bolder, and
/// the sentence.
class RememberLabel {
    Q_GADGET
    QML_VALUE_TYPE(rememberLabel)
    Q_PROPERTY(QString styledText MEMBER styledText CONSTANT FINAL)
    Q_PROPERTY(QString plainText MEMBER plainText CONSTANT FINAL)
    Q_PROPERTY(QFont font MEMBER font CONSTANT FINAL)
    Q_PROPERTY(QColor color MEMBER color CONSTANT FINAL)

public:
    /// In the module's language, the colour being that of the theme in force.
    [[nodiscard]] static RememberLabel in(const Coloring& colors,
                                          const FontsCreating& fonts = FontsCreator());

    /// With the mark-up of Text.StyledText; what the string table holds is not read as mark-up.
    QString styledText;
    QString plainText;
    QFont font;
    QColor color;
};

} // namespace quillet
