#include "Platform/Http/Session/SessionOwner.hpp"

namespace quillet::platform {

SessionOwner::SessionOwner(URLSessionConfiguration configuration) {
    const auto clock = configuration.clock;
    loop_ = std::make_shared<SessionLoop>(std::move(configuration));
    if (clock) {
        clock->addListener(loop_);
    }
}

SessionOwner::~SessionOwner() {
    loop_->ownerIsGone();
}

} // namespace quillet::platform
