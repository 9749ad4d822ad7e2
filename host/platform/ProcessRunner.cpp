#include "host/platform/ProcessRunner.h"

#include "host/platform/SystemError.h"
#include "host/platform/SystemWait.h"

namespace veldra::host {

bool ProcessRunner::isCancelled() const {
  return m_cancel.isRaised();
}

Result<CommandRun::Ending> ProcessRunner::runChild(Start& start, std::uint32_t timeout) {
  OutputPipe output(this->output(), settings().watch);
  OutputPipe errors(this->errors(), settings().watch);
  ChildProcess child;
  if (const std::string reason = startChild(start, child, output, errors); !reason.empty())
    return Result<Ending>::failure(reason);
  if (follower()) output.setFollower(&follower());
  SystemWait wait(child, output, errors, m_cancel, settings());
  const auto stop = wait.run(timeout);
  return Ending{stop, child.finish(wait.wasForced()), errors.endsInsideLine()};
}

std::string ProcessRunner::systemStartError(int error) const {
  const char* const known = knownStartError(error);
  return startError(known != nullptr ? known : systemErrorText(error));
}

}  // namespace veldra::host
