#pragma once

#include "Gallery/GalleryAxes.hpp"
#include "Gallery/GalleryScreens.hpp"
#include "HostApplication.hpp"
#include "Play/ScreenReader.hpp"

#include <QImage>

#include <expected>
#include <memory>
#include <optional>

namespace demo {

/// The sample host's window without a display, on which the screens of the gallery are opened against a
/// scripted back end. Everything that is shown follows the theme and the text size in place. Only one may
/// exist at a time. Main thread only.
class GalleryStage {
public:
    GalleryStage();
    ~GalleryStage();
    GalleryStage(const GalleryStage&) = delete;
    GalleryStage& operator=(const GalleryStage&) = delete;

    /// Shows a screen at this size, in place of the one before. The error is one line for a person.
    [[nodiscard]] std::expected<void, QString> open(const GalleryScreen& screen, QSize size);
    /// The screen that is open, in this theme and text size, once nothing moves. The progress indicator is
    /// shown as it looks this many seconds after its start.
    [[nodiscard]] std::expected<QImage, QString>
    picture(const GalleryTheme& theme, const GalleryTextSize& textSize, double ringTime = 0.75);
    [[nodiscard]] HostApplication& host() const { return *host_; }
    [[nodiscard]] const Journal& journal() const { return journal_; }
    [[nodiscard]] quillet::testing::ScriptedBackend& backend() const { return *backend_; }
    /// The window as it looks now.
    [[nodiscard]] QImage grab() const { return host_->window()->grabWindow(); }

private:
    [[nodiscard]] bool hasSize(QSize size) const;
    /// Returns whether the step could be begun.
    [[nodiscard]] bool begin(GalleryStep step);
    [[nodiscard]] bool isDone(GalleryStep step) const;
    [[nodiscard]] bool isReached(const GalleryScreen& screen) const;
    [[nodiscard]] bool isLoading() const;
    [[nodiscard]] bool isScrolled() const;

    std::shared_ptr<quillet::testing::ScriptedBackend> backend_;
    Journal journal_;
    LiveStatus status_;
    PhoneArea area_;
    std::shared_ptr<HostApplication> host_;
    std::optional<ScreenReader> reader_;
    GalleryPart part_ = GalleryPart::start;
    bool isLoaded_ = false;
};

} // namespace demo
