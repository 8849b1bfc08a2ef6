#pragma once

namespace kel {
enum class KelIconNumber { checkCircle = 1, error, inventory, warning };
}
