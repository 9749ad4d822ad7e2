#pragma once

#include <optional>
#include <string>

#include "cm/host/CMVDYHandler.h"
#include "host/model/Problem.h"

namespace veldra::host {

/// Keeps a copy of a project file beside it while a command works on the file, and puts it back
/// when the command did not succeed.
class ModelFileHandler : public CMVDYHandler {
 public:
  explicit ModelFileHandler(std::string fullFileName);
  ModelFileHandler(const ModelFileHandler&) = delete;
  ModelFileHandler& operator=(const ModelFileHandler&) = delete;
  ~ModelFileHandler() override;

  void prepare(Kind kind) override;
  void complete() override;
  std::string oldFileName() const override;
  std::string newFileName() const override;
  std::string fileNameToLoad() const override;

 private:
  std::string withExtension(const char* extension) const;
  void restore() noexcept;

  std::string m_file;
  std::string m_copy;
  bool m_isProjectFile;
  bool m_prepared = false;
};

/// The problem of a copy that was left behind when the program died during a command. A copy that is
/// just like the file is removed instead.
std::optional<Problem> leftBehindCopy(const std::string& projectFile);

}  // namespace veldra::host
