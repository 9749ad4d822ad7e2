#pragma once

#include <string>

namespace veldra {

/// Keeps a model file consistent around one command: made per unit, told what comes, told how it
/// went.
///
/// It works on files with the host's new or old project extension and does nothing for others. When
/// it is destroyed without having been told of success, it puts the file back as it was.
class CMVDYHandler {
 public:
  /// Which operation surrounds the command.
  enum Kind : int { CheckOut = 1, CheckIn = 2, Fetch = 4 };

  virtual ~CMVDYHandler() = default;

  /// Before the command: keeps a copy of the project's own file.
  virtual void prepare(Kind kind) = 0;
  /// After a command that succeeded: the file on disk is the good one, the copy goes.
  virtual void complete() = 0;

  /// The file's name with the old and with the new extension, and the one that is to be loaded.
  /// Empty for a file that is not a project file.
  virtual std::string oldFileName() const = 0;
  virtual std::string newFileName() const = 0;
  virtual std::string fileNameToLoad() const = 0;
};

}  // namespace veldra
