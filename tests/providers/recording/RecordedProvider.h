#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace veldra::test {

/// What the recording provider was asked, and what it answers. The library exports one of these as
/// the function `recordedProvider`.
struct RecordedProvider {
  /// One line per call: entry point, files and other texts, numbers.
  std::vector<std::string> calls;
  /// By entry point; the others answer 0.
  std::map<std::string, int> results;
  /// By file; the others are controlled and not checked out.
  std::map<std::string, int> status;
  std::string name = "Recorder";
  unsigned capabilities = 0;
  /// What the user chooses in the provider's window.
  std::string project = "Chosen";
  std::string auxPath = "aux";
  std::vector<std::string> listed;  ///< What SccPopulateList reports.
  std::vector<std::string> tasks;
  std::string defaultTask;
  std::map<std::string, std::string> holders;  ///< By file.
  /// Runs inside a call, before it returns.
  std::function<void(const std::string& entryPoint)> during;
  /// A text that every check-out says through the callback, if there is one.
  std::string text;
};

}  // namespace veldra::test
