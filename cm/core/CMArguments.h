#pragma once

#include <string>
#include <utility>

#include "cm/core/CMArgument.h"

namespace veldra {

/// "label": a revision or tag, in double quotes when it contains a blank.
class VELDRA_CM_EXPORT CMLabel : public CMUserBasedArgument {
 public:
  explicit CMLabel(std::string label) : m_label(std::move(label)) {}
  int isNamed(const std::string& keyword) const override;
  std::string substitute(const std::string& keyword) override;

 private:
  std::string m_label;
};

/// "log": the comment of a check-in.
class VELDRA_CM_EXPORT CMLog : public CMUserBasedArgument {
 public:
  explicit CMLog(std::string comment) : m_comment(std::move(comment)) {}
  int isNamed(const std::string& keyword) const override;
  std::string substitute(const std::string& keyword) override;

  /// True when the project's setting of that name says "No". The name promises the opposite of what
  /// the result means; callers rely on the result as it is.
  static bool EncloseCommentsInQuotes();

 private:
  std::string m_comment;
};

/// "logFile": the path of a temporary file that holds the comment byte for byte, in double quotes
/// when it contains a blank. With it a comment of any content reaches the archive unchanged and
/// never becomes part of a command line. The file is written at the first use and removed with the
/// argument.
class VELDRA_CM_EXPORT CMLogFile : public CMUserBasedArgument {
 public:
  explicit CMLogFile(std::string comment) : m_comment(std::move(comment)) {}
  ~CMLogFile() override;
  int isNamed(const std::string& keyword) const override;
  /// Empty when the file could not be written; the user has then been told.
  std::string substitute(const std::string& keyword) override;

 private:
  std::string m_comment;
  std::string m_path;
};

/// "mode": the tool's word for read-only or read-write.
class VELDRA_CM_EXPORT CMMode : public CMPropertyDirectedArgument {
 public:
  enum Mode : int { ReadOnly = 0, ReadWrite = 1 };
  explicit CMMode(Mode mode) : m_mode(mode) {}
  int isNamed(const std::string& keyword) const override;
  std::string substitute(const std::string& keyword) override;

 private:
  Mode m_mode;
};

/// "targetDir": the directory that a fetch writes to.
class VELDRA_CM_EXPORT CMTargetFile : public CMUserBasedArgument {
 public:
  explicit CMTargetFile(std::string directory) : m_directory(std::move(directory)) {}
  int isNamed(const std::string& keyword) const override;
  std::string substitute(const std::string& keyword) override;

 private:
  std::string m_directory;
};

/// A file's name before and after, in full: "oldName" and "newName", and their directories "olddir"
/// and "newdir".
class VELDRA_CM_EXPORT CMNameChange : public CMArgument {
 public:
  CMNameChange(std::string oldName, std::string newName)
      : m_oldName(std::move(oldName)), m_newName(std::move(newName)) {}
  int isNamed(const std::string& keyword) const override;
  std::string substitute(const std::string& keyword) override;

 private:
  std::string m_oldName;
  std::string m_newName;
};

/// "workspace".
class VELDRA_CM_EXPORT CMWorkspace : public CMPropertyArgument {
 public:
  explicit CMWorkspace(std::string workspace) : m_workspace(std::move(workspace)) {}
  int isNamed(const std::string& keyword) const override;
  std::string substitute(const std::string& keyword) override;

 private:
  std::string m_workspace;
};

/// "shouldSuppressSCCOKMessage": tells the provider's add to stay silent.
class VELDRA_CM_EXPORT CMSuppressOKMessage : public CMArgument {
 public:
  explicit CMSuppressOKMessage(std::string value) : m_value(std::move(value)) {}
  int isNamed(const std::string& keyword) const override;
  std::string substitute(const std::string& keyword) override;

 private:
  std::string m_value;
};

}  // namespace veldra
