#pragma once

namespace quillet {

/// Something that can cover itself while a call runs. Main thread only; starting or stopping twice does no
/// harm.
class Loading {
public:
    virtual ~Loading() = default;
    virtual void startLoading() = 0;
    virtual void stopLoading() = 0;
};

} // namespace quillet
