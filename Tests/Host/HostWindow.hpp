#pragma once

#include "Appearance.hpp"
#include "HostApplication.hpp"
#include "Play/WarningCounter.hpp"

#include <QQuickItem>
#include <QtTest/qtestsystem.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace demo::testing {

/// All that is in the item, in the order of the tree. Items made by views have no parent but a visual one.
inline QList<QQuickItem*> itemsIn(const QQuickItem& item) {
    QList<QQuickItem*> items;
    for (QQuickItem* child : item.childItems()) {
        items << child << itemsIn(*child);
    }
    return items;
}

/// The texts that are shown, each with a mark where it does not fit into its box.
inline std::string wordsIn(const QQuickItem& item) {
    QStringList words;
    for (const QQuickItem* text : itemsIn(item)) {
        const QString word = text->property("text").toString();
        // An icon is a letter of a font of its own.
        if (!text->property("truncated").isValid() || !text->isVisible() || word.isEmpty() ||
            word[0].category() == QChar::Other_PrivateUse) {
            continue;
        }
        const bool isCut = text->property("truncated").toBool() ||
                           text->property("contentWidth").toDouble() > text->width() + 1 ||
                           text->property("contentHeight").toDouble() > text->height() + 1;
        words << word + (isCut ? " (cut)" : "");
    }
    return words.join(" | ").toStdString();
}

/// The host in a window, with one order in its list and no gateway. No test may make it warn.
struct HostWindow : ::testing::Test {
    HostWindow() { EXPECT_TRUE(host->load(host)); }
    ~HostWindow() override {
        apply({});
        EXPECT_EQ(WarningCounter::count(), 0);
    }

    [[nodiscard]] QQuickItem& item(const char* name) const {
        const auto items = itemsIn(*host->phone());
        const auto found = std::ranges::find(items, name, &QQuickItem::objectName);
        EXPECT_NE(found, items.end()) << name;
        return found == items.end() ? *host->phone() : **found;
    }
    [[nodiscard]] QQuickItem& stack() const {
        return *host->window()->property("stack").value<QQuickItem*>();
    }
    [[nodiscard]] bool settle() const {
        return QTest::qWaitFor(
            [&] { return !stack().property("busy").toBool() && host->phone()->size() == area.size(); });
    }

    const WarningCounter warnings;
    std::shared_ptr<Journal> journal = std::make_shared<Journal>();
    LiveStatus status;
    PhoneArea area{QSize(320, 568), false};
    std::shared_ptr<HostApplication> host = std::make_shared<HostApplication>(
        *journal, status, area,
        R"([{"customer": "Florencia Vergara Contreras", "title": "No product is added", "country": "CL",
             "message": "¡Hola! Te mando mi pedido de la revista.", "consultant": 41053,
             "cart": "41053a00-52e1-4d0b-9c77-1f0a6b2e8453"}])");
};

} // namespace demo::testing
