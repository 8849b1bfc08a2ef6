#pragma once

namespace quillet {

/// Shows a loading overlay while a call runs. Main thread only; starting or stopping twice has no further
/// effect.
class Loading {
public:
    virtual ~Loading() = default;
    virtual void startLoading() = 0;
    virtual void stopLoading() = 0;
};

} // namespace quillet
