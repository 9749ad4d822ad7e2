#pragma once

/// Marks what the module's shared library lets its callers see; everything else stays inside.
#if defined(_WIN32)
#if defined(VELDRA_CM_BUILDING)
#define VELDRA_CM_EXPORT __declspec(dllexport)
#elif defined(VELDRA_CM_STATIC)
#define VELDRA_CM_EXPORT
#else
#define VELDRA_CM_EXPORT __declspec(dllimport)
#endif
#else
#define VELDRA_CM_EXPORT __attribute__((visibility("default")))
#endif
