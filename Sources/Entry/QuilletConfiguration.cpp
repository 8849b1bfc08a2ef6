#include "Quillet/Starter.hpp"

namespace quillet {

QuilletConfiguration& QuilletConfiguration::shared() {
    static QuilletConfiguration configuration;
    return configuration;
}

} // namespace quillet
