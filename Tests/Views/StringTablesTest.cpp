#include "StringTable.hpp"
#include "Views/TextKeys.hpp"

#include <QRegularExpression>

#include <gmock/gmock.h>

namespace quillet::testing {

namespace {

QStringList placeholdersOf(const QString& text) {
    static const QRegularExpression placeholder("%[A-Za-z0-9]+");
    QStringList found;
    for (auto matches = placeholder.globalMatch(text); matches.hasNext();) {
        found << matches.next().captured();
    }
    return found;
}

QString faultOf(const demo::StringTableEntry& entry, const TextKey& key) {
    if (!entry.isFinished) {
        return "is not finished";
    }
    if (entry.isCounted != key.isCounted) {
        return key.isCounted ? "has no plural forms" : "has plural forms";
    }
    // Spanish, Portuguese and English have two.
    if (entry.forms.size() != (key.isCounted ? 2 : 1)) {
        return "has too many forms or too few";
    }
    for (const QString& form : entry.forms) {
        if (form.trimmed().isEmpty()) {
            return "is empty";
        }
        if (placeholdersOf(form) != key.placeholders) {
            return "has other placeholders than its use: " + form;
        }
    }
    return {};
}

std::vector<std::string> faultsOf(const demo::StringTable& table, const std::vector<TextKey>& keys) {
    std::vector<std::string> faults;
    const auto blame = [&](const QString& key, const QString& fault) {
        faults.push_back(('"' + key + "\" " + fault).toStdString());
    };
    for (const TextKey& key : keys) {
        const auto count = std::ranges::count(table.entries, QString(key.key), &demo::StringTableEntry::key);
        if (count != 1) {
            blame(key.key, count == 0 ? "has no entry" : "has several entries");
        }
    }
    for (const auto& entry : table.entries) {
        const auto key = std::ranges::find(keys, entry.key, &TextKey::key);
        const QString fault = key == keys.end() ? "is no key of the code" : faultOf(entry, *key);
        if (!fault.isEmpty()) {
            blame(entry.key, fault);
        }
    }
    return faults;
}

} // namespace

TEST(StringTables, HoldAFinishedTextForEachKeyOfTheCodeAndNoOther) {
    for (const auto& [path, keys] : textFamilies()) {
        for (const char* language : {"es", "pt", "en"}) {
            const QString file = path + '_' + language + ".ts";
            SCOPED_TRACE(file.toStdString());
            const auto table = demo::readStringTable(QUILLET_PROJECT_FOLDER "/" + file);
            ASSERT_TRUE(table) << table.error().toStdString();
            EXPECT_EQ(table->language.section(u'_', 0, 0), language);
            EXPECT_THAT(faultsOf(*table, keys), ::testing::IsEmpty());
        }
    }
}

} // namespace quillet::testing
