#pragma once

namespace quillet {

/// One call that can be started. The handle may be freed at any time: a call not yet started then never
/// happens, a started one runs to its end.
class URLSessionDataTaskResumable {
public:
    virtual ~URLSessionDataTaskResumable() = default;

    /// Starts the call and returns at once. Starting twice starts once. May be called on any thread.
    virtual void resume() = 0;
};

} // namespace quillet
