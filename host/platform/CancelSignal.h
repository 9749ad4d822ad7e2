#pragma once

// A request to stop, raised from another thread, that the room's way of waiting can include.
#if defined(_WIN32)
#include "host/platform/win32/CancelSignal.h"
#else
#include "host/platform/posix/CancelSignal.h"
#endif
