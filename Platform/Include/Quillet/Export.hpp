#pragma once

// QUILLET_BACKEND_API and QUILLET_API mark what the libraries Quillet::Backend and Quillet::Quillet export.
// Everything else is hidden in a shared library. The build defines QUILLET_SHARED for shared libraries and
// for their users.
#if defined(_WIN32) && defined(QUILLET_SHARED)
#define QUILLET_EXPORTED __declspec(dllexport)
#define QUILLET_IMPORTED __declspec(dllimport)
#elif defined(QUILLET_SHARED)
#define QUILLET_EXPORTED __attribute__((visibility("default")))
#define QUILLET_IMPORTED QUILLET_EXPORTED
#else
#define QUILLET_EXPORTED
#define QUILLET_IMPORTED
#endif

#ifdef QUILLET_BUILDS_BACKEND
#define QUILLET_BACKEND_API QUILLET_EXPORTED
#else
#define QUILLET_BACKEND_API QUILLET_IMPORTED
#endif

#ifdef QUILLET_BUILDS_QUILLET
#define QUILLET_API QUILLET_EXPORTED
#else
#define QUILLET_API QUILLET_IMPORTED
#endif
