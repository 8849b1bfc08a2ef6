#pragma once

namespace quillet {

/// A piece of work that its owner can start and later ask about. Used on the main thread.
class Executable {
public:
    virtual ~Executable() = default;

    /// Whether the latest run that has ended brought a response; false until one has. A new run leaves it as
    /// it is until it ends.
    [[nodiscard]] virtual bool isFinishedSuccessfully() const = 0;

    /// Starts the work and returns at once. Starting again while a run is on starts another beside it.
    virtual void execute() = 0;
};

} // namespace quillet
