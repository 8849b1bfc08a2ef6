#pragma once

namespace quillet {

/// Makes libcurl ready, once in the process; it is never taken down again. May be called on any thread.
void initialiseCurl();

} // namespace quillet
