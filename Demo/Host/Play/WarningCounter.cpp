#include "Play/WarningCounter.hpp"

#include <QtGlobal>

#include <atomic>

namespace demo {

namespace {

std::atomic<int> warnings = 0;
QtMessageHandler printer = nullptr;

void handle(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    // The types do not stand in the order of their weight.
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
