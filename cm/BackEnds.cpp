// Joins the two back ends to the facade. This is the one file that knows both of them.

#include "cm/core/BackEnd.h"
#include "cm/scc/ProviderBackEnd.h"
#include "cm/tool/ToolBackEnd.h"

namespace veldra {

BackEnds& backEnds() {
  static ToolBackEnd tool;
  static ProviderBackEnd provider;
  static BackEnds joined{&tool, &provider};
  return joined;
}

}  // namespace veldra
