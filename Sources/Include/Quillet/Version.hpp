#pragma once

// The module's version, by Semantic Versioning 2.0.0. The build reads it from here.
#define QUILLET_VERSION_MAJOR 1
#define QUILLET_VERSION_MINOR 0
#define QUILLET_VERSION_PATCH 0
#define QUILLET_VERSION_STRING "1.0.0"
