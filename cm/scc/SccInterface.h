#pragma once

// The whole provider interface: what a program resolves at run time and what a provider exports.
#include "cm/scc/interface/SccCallbacks.h"
#include "cm/scc/interface/SccCapabilities.h"
#include "cm/scc/interface/SccCommands.h"
#include "cm/scc/interface/SccEntryPoints.h"
#include "cm/scc/interface/SccResults.h"
#include "cm/scc/interface/SccStatus.h"
#include "cm/scc/interface/SccTypes.h"
