#include "Resources/Localization.hpp"

#include "Resources/ModuleBundle.hpp"

namespace quillet {

namespace {

QString withNumber(const QString& form, quint64 number) {
    const QString digits = QString::number(number);
    // A host's table may lack the entry, and then the form has no place for the number.
    return form.contains(QLatin1String("%n")) ? QString(form).replace(QLatin1String("%n"), digits)
                                              : form + digits;
}

} // namespace

// Each text is a static of its own, so that it is looked up only when somebody reads it.
#define QUILLET_TEXT(name, key)                                                                              \
    const QString& Localization::name() {                                                                    \
        static const QString text = kel::localized(key, moduleBundle());                                     \
        return text;                                                                                         \
    }
#define QUILLET_NUMBERED_TEXT(name, key)                                                                     \
    QString Localization::name(quint64 number) {                                                             \
        static const QString form = kel::localized(key, moduleBundle());                                     \
        return withNumber(form, number);                                                                     \
    }
#define QUILLET_COUNTED_TEXT(name, key)                                                                      \
    QString Localization::name(quint64 count) {                                                              \
        static const auto words = kel::localizedCount(key, moduleBundle());                                  \
        const QString text = words(count);                                                                   \
        const QString digits = QString::number(count);                                                       \
        return text.contains(digits) ? text : digits;                                                        \
    }
#include "Resources/LocalizationKeys.def"

} // namespace quillet
