#pragma once

namespace quillet {

/// A back-end environment; each has a gateway host of its own, chosen when the module is built.
enum class Environment { dev, hml, prd };

} // namespace quillet
