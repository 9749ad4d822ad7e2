#pragma once

/// Marks what the dialogs' shared library lets its callers see; everything else stays inside.
#if defined(_WIN32)
#if defined(VELDRA_CM_UI_BUILDING)
#define VELDRA_CM_UI_EXPORT __declspec(dllexport)
#elif defined(VELDRA_CM_UI_STATIC)
#define VELDRA_CM_UI_EXPORT
#else
#define VELDRA_CM_UI_EXPORT __declspec(dllimport)
#endif
#else
#define VELDRA_CM_UI_EXPORT __attribute__((visibility("default")))
#endif
