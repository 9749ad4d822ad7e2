#include "host/cli/CallArguments.h"

#include "host/model/PathNames.h"

namespace veldra::host::cli {

namespace {

/// "logFile" and "unitList" of a dry run.
class PlannedFiles : public CMUserBasedArgument {
 public:
  int isNamed(const std::string& keyword) const override {
    const std::string name = lowerCase(keyword);
    return name == "logfile" || name == "unitlist" ? 1 : 0;
  }
  std::string substitute(const std::string& keyword) override {
    if (isNamed(keyword) == 0) return keyword;
    return lowerCase(keyword) == "logfile" ? PlannedCommentFile : PlannedUnitList;
  }
};

}  // namespace

CallArguments callArguments(CallValues values, bool isPlan) {
  if (isPlan) values.parts &= ~CallPart::CommentFile;
  CallArguments arguments = veldra::callArguments(values);
  if (isPlan) arguments.addFirst<PlannedFiles>();
  return arguments;
}

}  // namespace veldra::host::cli
