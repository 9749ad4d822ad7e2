#pragma once

#include <string>

namespace veldra {

/// Keeps a copy of what a command is about to overwrite, so that nobody's work is lost. A host
/// without it keeps nothing.
class IKeptCopies {
 public:
  virtual ~IKeptCopies() = default;

  /// Before a command that may give a file other content or take it away. `operation` is the user's
  /// word for what is done, for example "Undo Check Out". False, with a sentence in `reason`, when
  /// no copy could be made: the module then leaves the file alone. A file that does not exist needs
  /// no copy.
  virtual bool keep(const std::string& fullFileName, const std::string& operation,
                    std::string& reason) = 0;
  /// After that command, whatever became of it: the copy may go when the file has the same content
  /// as before.
  virtual void settle(const std::string& fullFileName) = 0;
};

}  // namespace veldra
