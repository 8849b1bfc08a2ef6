#pragma once

#include <QColor>
#include <QQuickTextDocument>
#include <QSyntaxHighlighter>
#include <QtQml/qqmlregistration.h>

namespace demo {

/// Writes C++ code into a text item's document, and colours it: comments, texts, keywords, and the module's
/// names. Each line stands alone, so it knows no comment or text that goes on in the next one.
class CodeHighlighter : public QSyntaxHighlighter {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument* target READ target WRITE setTarget NOTIFY changed FINAL)
    Q_PROPERTY(QString code READ code WRITE setCode NOTIFY changed FINAL)
    Q_PROPERTY(QColor comments MEMBER comments_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor texts MEMBER texts_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor keywords MEMBER keywords_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor moduleNames MEMBER moduleNames_ NOTIFY changed FINAL)

public:
    explicit CodeHighlighter(QObject* parent = nullptr);

    [[nodiscard]] QQuickTextDocument* target() const { return target_; }
    void setTarget(QQuickTextDocument* target);
    [[nodiscard]] QString code() const { return code_; }
    void setCode(const QString& code);

Q_SIGNALS:
    void changed();

protected:
    void highlightBlock(const QString& line) override;

private:
    void write();

    QQuickTextDocument* target_ = nullptr;
    QString code_;
    QColor comments_;
    QColor texts_;
    QColor keywords_;
    QColor moduleNames_;
};

} // namespace demo
