#include "Views/Labels/Words.hpp"

#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>

namespace quillet {

bool Words::fit(const QString& text, const QFont& font, double width) {
    const auto words = QStringView(text).split(u' ', Qt::SkipEmptyParts);
    const auto longest = std::ranges::max_element(words, {}, &QStringView::size);
    // No letter is wider than the font is high, so that most names need not be measured.
    const QFontInfo info(font);
    if (longest == words.end() || static_cast<double>(longest->size() * info.pixelSize()) <= width) {
        return true;
    }
    const QFontMetricsF metrics(font);
    return std::ranges::all_of(
        words, [&](QStringView word) { return metrics.horizontalAdvance(word.toString()) <= width; });
}

} // namespace quillet
