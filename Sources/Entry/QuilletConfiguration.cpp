#include "Entry/QuilletConfiguration.hpp"

namespace quillet {

QuilletConfiguration& QuilletConfiguration::shared() {
    static QuilletConfiguration configuration;
    return configuration;
}

} // namespace quillet
