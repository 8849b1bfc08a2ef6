#pragma once

namespace quillet {

/// One call that can be started. The handle may be freed at any time: a call not yet started then never
/// happens, a started one runs to its end.
class URLSessionDataTaskResumable {
public:
    virtual ~URLSessionDataTaskResumable() = default;

    /// Starts the call and returns at once. Starting twice starts once. May be called on any thread. Where
    /// there is no memory it throws std::bad_alloc, and the call's completion will not be called.
    virtual void resume() = 0;
};

} // namespace quillet
