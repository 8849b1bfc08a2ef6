#include "PseudoLocale.hpp"

#include <QRegularExpression>

namespace demo {

namespace {

QChar withAccent(QChar letter) {
    static const QString plain = QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
    static const QString accents = QStringLiteral("áƀçďéƒĝĥíĵķĺɱñóþǫřšţúṽŵẋýžÁƁÇĎÉƑĜĤÍĴĶĹṀÑÓÞǪŘŠŢÚṼŴẊÝŽ");
    const auto at = plain.indexOf(letter);
    return at < 0 ? letter : accents[at];
}

QChar inHebrew(QChar letter) {
    constexpr char16_t alef = 0x05d0;
    const char16_t lower = letter.toLower().unicode();
    return lower >= u'a' && lower <= u'z' ? QChar(char16_t(alef + lower - u'a')) : letter;
}

QString lettersChanged(const QString& text, QChar (*change)(QChar letter)) {
    static const QRegularExpression placeholder(QStringLiteral("%[A-Za-z0-9]"));
    QString changed;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (placeholder
                .match(text, i, QRegularExpression::NormalMatch,
                       QRegularExpression::AnchorAtOffsetMatchOption)
                .hasMatch()) {
            changed += text[i++];
            changed += text[i];
        } else {
            changed += change(text[i]);
        }
    }
    return changed;
}

/// Words and not letters, since a line breaks between words.
QString padding(qsizetype length) {
    static const QStringList words{QStringLiteral(" one"), QStringLiteral(" two"), QStringLiteral(" three"),
                                   QStringLiteral(" four"), QStringLiteral(" five")};
    QString padding;
    for (qsizetype i = 0; padding.size() < length; ++i) {
        padding += words[i % words.size()];
    }
    return padding;
}

} // namespace

QString accented(const QString& text) {
    const QString longer = text + padding((text.size() * 2 + 4) / 5);
    return u'⟦' + lettersChanged(longer, withAccent) + u'⟧';
}

QString rightToLeft(const QString& text) {
    return lettersChanged(text, inHebrew);
}

StringTable pseudoLocale(StringTable table, QString (*change)(const QString& text)) {
    for (StringTableEntry& entry : table.entries) {
        for (QString& form : entry.forms) {
            form = change(form);
        }
    }
    return table;
}

} // namespace demo
