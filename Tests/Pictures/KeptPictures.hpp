#pragma once

#include <QImage>

namespace demo::testing {

/// Where two pictures differ as a person would see it; empty if they do not. Another version of Qt draws the
/// edges of letters differently and may move them by a pixel, which counts as no difference.
[[nodiscard]] QRect difference(const QImage& expected, const QImage& actual);

/// Compares a picture with the one kept in Expected under this name, and fails where they differ. The actual
/// picture and what differs are then left in the build folder. With QUILLET_RENEW_PICTURES set it keeps the
/// picture instead, and the test counts as skipped.
void expectKept(const QString& name, const QImage& picture);

} // namespace demo::testing
