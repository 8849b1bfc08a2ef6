#pragma once

#include "Workers/DispatchQueuing.hpp"

namespace quillet {

/// The process's main queue behind its role.
class DispatchMainQueueWrapper final : public DispatchQueuing {
public:
    void async(std::function<void()> block) const override;
};

} // namespace quillet
