#pragma once

#include <QString>

namespace quillet {

/// The module's texts that follow the host's language, as LocalizationKeys.def names them. Each is looked up
/// by its English key in the module's own string table on first use and kept for the life of the process.
/// Main thread only.
struct Localization {
    Localization() = delete;

#define QUILLET_TEXT(name, key) static const QString& name();
#define QUILLET_NUMBERED_TEXT(name, key) static QString name(quint64 number);
#define QUILLET_COUNTED_TEXT(name, key) static QString name(quint64 count);
#include "Resources/LocalizationKeys.def"
};

} // namespace quillet
