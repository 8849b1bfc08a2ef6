// A host that shows the summary of an order, tells the file descriptor 3 when it does, and stays.
#include "Screens/ModuleStage.hpp"
#include "Screens/OffscreenApplication.hpp"

#include <unistd.h>

int main() {
    const quillet::benchmarks::OffscreenApplication application;
    quillet::benchmarks::ModuleStage stage;
    stage.open();
    stage.drawUntil([&] { return stage.showsSummary(); });
    static_cast<void>(!write(3, "1\n", 2));
    return QCoreApplication::exec();
}
