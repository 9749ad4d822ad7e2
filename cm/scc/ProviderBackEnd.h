#pragma once

#include "cm/core/BackEnd.h"

namespace veldra {

/// The back end that drives provider libraries. It has no operations yet: each call is answered
/// with the diagnostic that says so.
class ProviderBackEnd : public BackEnd {};

}  // namespace veldra
