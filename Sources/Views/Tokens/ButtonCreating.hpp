#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace quillet {

/// Data of a design-system button.
class Button {
    Q_GADGET
    QML_VALUE_TYPE(button)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString identifier MEMBER identifier CONSTANT FINAL)
    Q_PROPERTY(bool outlined MEMBER outlined CONSTANT FINAL)

public:
    QString title;
    /// Object name for test automation, independent of the language.
    QString identifier;
    bool outlined = false;
};

/// Buttons in the design system's two styles.
class ButtonCreating {
public:
    virtual ~ButtonCreating() = default;
    [[nodiscard]] virtual Button contained(const QString& title, const QString& identifier) const = 0;
    [[nodiscard]] virtual Button outlined(const QString& title, const QString& identifier) const = 0;
};

class ButtonFactory final : public ButtonCreating {
public:
    [[nodiscard]] Button contained(const QString& title, const QString& identifier) const override {
        return {title, identifier, false};
    }
    [[nodiscard]] Button outlined(const QString& title, const QString& identifier) const override {
        return {title, identifier, true};
    }
};

} // namespace quillet
