#pragma once

#include "Options.hpp"
#include "Play/PlayScript.hpp"

#include <QJsonObject>

namespace demo {

/// Runs a play that chooses its language in a process of its own, with a gateway of its own, because a
/// process looks its texts up once. What that process says goes where this one's goes.
///
/// `program` is the host's. The play's pictures go to a folder in `tour.outFolder` that is named after the
/// play. Returns the play's part of the report; "ok" is also false where that process warned or came to no
/// end, and in the latter case there are no steps.
[[nodiscard]] QJsonObject runLanguagePlay(const QString& program, const PlayScript& play,
                                          const Options& tour);

} // namespace demo
