#include "Play/Words.hpp"

namespace demo {

std::optional<Words> split(const QString& line) {
    Words words;
    QString word;
    bool quoted = false;
    bool started = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        if (c == u'"') {
            quoted = !quoted;
            started = true;
        } else if (quoted && c == u'\\' && i + 1 < line.size()) {
            word += line[++i];
        } else if (!quoted && c.isSpace()) {
            if (started) {
                words << word;
            }
            word.clear();
            started = false;
        } else {
            word += c;
            started = true;
        }
    }
    if (started) {
        words << word;
    }
    return quoted ? std::nullopt : std::optional(words);
}

std::optional<QHash<QString, QString>> settings(const Words& words, const QStringList& known) {
    QHash<QString, QString> values;
    for (const QString& word : words) {
        const QString key = word.section(u'=', 0, 0);
        if (!word.contains(u'=') || !known.contains(key) || values.contains(key)) {
            return std::nullopt;
        }
        values[key] = word.section(u'=', 1);
    }
    return values;
}

std::optional<QString> choice(const Words& words, const QStringList& known) {
    return words.size() == 1 && known.contains(words.first()) ? std::optional(words.first()) : std::nullopt;
}

std::optional<QString> onlyWord(const Words& words) {
    return words.size() == 1 ? std::optional(words.first()) : std::nullopt;
}

} // namespace demo
