#include "Play/WarningCounter.hpp"

#include <QtGlobal>

#include <atomic>

namespace demo {

namespace {

std::atomic<int> warnings = 0;
QtMessageHandler printer = nullptr;

void handle(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    // The values of QtMsgType are not in order of severity.
    if (type == QtWarningMsg || type == QtCriticalMsg || type == QtFatalMsg) {
        ++warnings;
    }
    printer(type, context, message);
}

} // namespace

WarningCounter::WarningCounter() {
    warnings = 0;
    printer = qInstallMessageHandler(handle);
}

WarningCounter::~WarningCounter() {
    qInstallMessageHandler(printer);
}

int WarningCounter::count() {
    return warnings;
}

} // namespace demo
