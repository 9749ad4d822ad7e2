#pragma once

// The room's way of waiting for a child and its outputs.
#if defined(_WIN32)
#include "host/platform/win32/EventWait.h"
#else
#include "host/platform/posix/PolledWait.h"
#endif

namespace veldra::host {

#if defined(_WIN32)
using SystemWait = EventWait;
#else
using SystemWait = PolledWait;
#endif

}  // namespace veldra::host
