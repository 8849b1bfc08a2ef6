#pragma once

namespace quillet::platform {

/// Makes Qt's event loop drain the module's main queue. Called on the main thread, with a QCoreApplication;
/// further calls do nothing as long as that application lives.
void pumpMainQueue();

} // namespace quillet::platform
