#include "host/cli/Packs.h"

#include "host/cli/ExitCode.h"
#include "host/model/PathNames.h"

namespace veldra::host::cli {

const PackDescription& packNamed(const PropertyLayers& properties, const std::string& name) {
  std::string known;
  for (const PackDescription& pack : properties.packs()) {
    if (lowerCase(pack.name) == lowerCase(name)) return pack;
    known += (known.empty() ? "" : ", ") + pack.name;
  }
  throw CommandError(ExitCode::WrongUsage,
                     "There is no tool pack \"" + name + "\". " +
                         (known.empty() ? "None is installed." : "Known are: " + known + "."));
}

}  // namespace veldra::host::cli
