#include "Fuzzing/Target.hpp"
#include "Views/Tokens/HexColor.hpp"

#include <QString>

namespace quillet::fuzzing {

static const Target target("color", [](const std::string& text) {
    const auto color = hexColor(text, 1);
    require(!color || color->isValid(), "what is a colour can be drawn");
    // Qt reads those that are written in full.
    const QColor full(QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())));
    require(text.size() != 7 || text.front() != '#' || !full.isValid() || color == full,
            "six digits are the colour that Qt reads");
    require(!color || hexColor(color->name().toStdString(), 1) == color, "a colour's name is that colour");
});

} // namespace quillet::fuzzing
