#include "host/cli/CallArguments.h"

#include "cm/templates/CMProperty.h"
#include "host/model/PathNames.h"

namespace veldra::host::cli {

int PlannedFiles::isNamed(const std::string& keyword) const {
  const std::string name = lowerCase(keyword);
  return name == "logfile" || name == "unitlist" ? 1 : 0;
}

std::string PlannedFiles::substitute(const std::string& keyword) {
  if (isNamed(keyword) == 0) return keyword;
  return lowerCase(keyword) == "logfile" ? PlannedCommentFile : PlannedUnitList;
}

int ProviderComment::isNamed(const std::string& keyword) const {
  return lowerCase(keyword) == "log" ? 1 : 0;
}

std::string ProviderComment::substitute(const std::string& keyword) {
  return isNamed(keyword) != 0 ? m_comment : keyword;
}

CallArguments callArguments(const CallValues& values) {
  CallArguments arguments;
  // First, because the provider back end asks nobody else.
  if (CMProperty::useSccCompliantTool() != 0) arguments.add<ProviderComment>(values.comment);
  arguments.add<CMMode>(values.mode);
  arguments.add<CMLabel>(values.label);
  if (values.isPlan) {
    arguments.add<PlannedFiles>();
  } else {
    arguments.add<CMLogFile>(values.comment);
  }
  arguments.add<CMWorkspace>(values.projectDirectory);
  // Last, because a project may let the comment answer to every keyword.
  arguments.add<CMLog>(values.comment);
  return arguments;
}

}  // namespace veldra::host::cli
