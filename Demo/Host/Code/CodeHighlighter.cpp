#include "Code/CodeHighlighter.hpp"

#include <QRegularExpression>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

#include <utility>

namespace demo {

namespace {

/// In hundredths of what the font asks for.
constexpr double lineHeight = 135;

QRegularExpression pattern(const char* text) {
    return QRegularExpression(QString::fromLatin1(text));
}

} // namespace

CodeHighlighter::CodeHighlighter(QObject* parent) : QSyntaxHighlighter(parent) {
    connect(this, &CodeHighlighter::changed, this, &QSyntaxHighlighter::rehighlight);
}

void CodeHighlighter::setTarget(QQuickTextDocument* target) {
    target_ = target;
    write();
}

void CodeHighlighter::setCode(const QString& code) {
    code_ = code;
    write();
}

void CodeHighlighter::write() {
    QTextDocument* document = target_ ? target_->textDocument() : nullptr;
    setDocument(document);
    if (document) {
        document->setPlainText(code_);
        QTextBlockFormat spaced;
        spaced.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
        QTextCursor all(document);
        all.select(QTextCursor::Document);
        all.mergeBlockFormat(spaced);
    }
    Q_EMIT changed();
}

void CodeHighlighter::highlightBlock(const QString& line) {
    static const QRegularExpression keyword = pattern("\\b(auto|bool|const|int|return|void)\\b");
    static const QRegularExpression moduleName = pattern("\\bquillet(::\\w+)+");
    static const QRegularExpression text = pattern("\"[^\"]*\"");
    static const QRegularExpression comment = pattern("//.*");
    // What comes later stands above what came before it: a keyword in a comment is part of the comment.
    const std::pair<const QRegularExpression&, const QColor&> rules[] = {
        {keyword, keywords_}, {moduleName, moduleNames_}, {text, texts_}, {comment, comments_}};
    for (const auto& [what, color] : rules) {
        for (auto found = what.globalMatch(line); found.hasNext();) {
            const auto match = found.next();
            setFormat(int(match.capturedStart()), int(match.capturedLength()), color);
        }
    }
}

} // namespace demo
