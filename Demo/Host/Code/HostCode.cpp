#include "Code/HostCode.hpp"

#include <QFile>

namespace demo {

QString HostCode::text() {
    QFile file(QStringLiteral(":/demo/HostCode.txt"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
}

QString HostCode::file() {
    return QStringLiteral(QUILLET_HOST_CODE_FILE);
}

} // namespace demo
