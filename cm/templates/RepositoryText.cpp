#include "cm/templates/RepositoryText.h"

#include "cm/core/CMArchive.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

std::string repositoryText() {
  CMArchive mainArchive{std::string()};
  const ArgumentList arguments{&mainArchive};
  std::string text;
  std::string extra;
  // The template keeps $SubDirs and $FileName for later, so the expansion reports them as
  // unresolved; the text is good all the same.
  CMProperty::ExpandProperty("Repository", arguments, text, extra);
  return text;
}

}  // namespace veldra
