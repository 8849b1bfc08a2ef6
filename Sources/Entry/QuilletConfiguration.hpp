#pragma once

#include "Entry/Environment.hpp"

namespace quillet {

/// What a host can configure before it starts the module.
class QuilletConfigurable {
public:
    virtual ~QuilletConfigurable() = default;
    /// Chooses the environment of every Starter built from now on; those built before keep theirs. Main
    /// thread only.
    virtual void configure(Environment environment) = 0;
};

/// The configuration of the process.
class QuilletConfiguration final : public QuilletConfigurable {
public:
    /// The one configuration, made on first access, which may come from any thread.
    [[nodiscard]] static QuilletConfiguration& shared();

    void configure(Environment environment) override { environment_ = environment; }
    /// Production until configured otherwise.
    [[nodiscard]] Environment environment() const { return environment_; }

private:
    QuilletConfiguration() = default;
    Environment environment_ = Environment::prd;
};

} // namespace quillet
