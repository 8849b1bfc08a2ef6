#pragma once

#include <QStringList>

#include <vector>

namespace quillet::testing {

/// A key as the code uses it.
struct TextKey {
    const char* key;
    bool isCounted;
    /// What each form of the text holds the place for.
    QStringList placeholders;
};

struct TextFamily {
    /// The tables' path in the project, without language and ending.
    QString path;
    std::vector<TextKey> keys;
};

/// The keys of all texts that follow the host's language, out of the lists that the code itself is made of.
inline std::vector<TextFamily> textFamilies() {
    return {
        {"Sources/Resources/Texts/quillet",
         {
#define QUILLET_TEXT(name, key) {key, false, {}},
#define QUILLET_NUMBERED_TEXT(name, key) {key, false, {"%n"}},
#define QUILLET_COUNTED_TEXT(name, key) {key, true, {"%n"}},
#include "Resources/LocalizationKeys.def"
         }},
        {"Kel/KelDS/Texts/kelds",
         {
#define KEL_TEXT(name, key) {key, false, {}},
#include "KelDS/KelTextKeys.def"
         }},
    };
}

} // namespace quillet::testing
