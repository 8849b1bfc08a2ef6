#pragma once

#include "Quillet/Testing/ScriptedBackend.hpp"

#include <QString>

#include <map>
#include <string>
#include <vector>

namespace demo {

/// What a screen shows, by which its picture knows that it is there.
enum class GalleryKind { loading, dialog, summary, tryAgain, result };

/// What a person does on the way to a screen of the gallery.
enum class GalleryStep { closeDialog, sendProducts, closeSection, waitLong };

/// The part of a long screen that its picture shows.
enum class GalleryPart { start, end };

/// A screen or dialog, and how to get there.
struct GalleryScreen {
    QString name;
    GalleryKind kind;
    /// Whether it is in the quick form.
    bool quick = false;
    /// How the back end answers; the other calls get the sample.
    std::map<quillet::testing::Call, quillet::testing::Reply> replies = {};
    /// The back end's code of a refusal that no reply leads to; empty for an order that is opened as usual.
    std::string refusal = {};
    std::vector<GalleryStep> steps = {};
    GalleryPart part = GalleryPart::start;
};

/// All of the module's screens and dialogs, or those of the quick form.
[[nodiscard]] std::vector<GalleryScreen> galleryScreens(bool quick);

} // namespace demo
