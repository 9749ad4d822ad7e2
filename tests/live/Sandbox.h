#pragma once

#include <map>
#include <string>
#include <vector>

namespace veldra::live {

/// What one program left behind.
struct Ended {
  int code = -1;  ///< The exit code, or 128 and the signal.
  std::string out;
  std::string err;
};

/// One file of a folder: whether its owner may write it, and its bytes.
struct FileState {
  bool isWritable = false;
  std::string bytes;
  bool operator==(const FileState&) const = default;
};

/// A folder of its own for one test, with a home, a locale and settings of its own. Everything in
/// it goes with the object.
class Sandbox {
 public:
  Sandbox();
  Sandbox(const Sandbox&) = delete;
  Sandbox& operator=(const Sandbox&) = delete;
  ~Sandbox();

  /// The absolute name of something in the sandbox.
  std::string path(const std::string& name = {}) const;

  /// Runs a program in the sandbox's folder with this input.
  Ended run(const std::vector<std::string>& command, const std::string& input = {}) const;
  /// The same with `veldra-cm` as the program.
  Ended cm(const std::vector<std::string>& arguments, const std::string& input = {}) const;
  /// Runs a script of the shell; $CM is `veldra-cm`.
  Ended shell(const std::string& script) const;

  void set(const std::string& variable, const std::string& value);
  /// The variables of everything that runs here.
  const std::map<std::string, std::string>& environment() const { return m_environment; }
  /// From now on everything is done under this name.
  void become(const std::string& user);

  void write(const std::string& name, const std::string& bytes) const;
  std::string read(const std::string& name) const;
  bool isWritable(const std::string& name) const;
  /// A fresh copy of the sample model, without a project file.
  void copySample(const std::string& name) const;
  /// Every file below a folder, by its relative name.
  std::map<std::string, FileState> files(const std::string& folder) const;

 private:
  std::string m_root;
  std::map<std::string, std::string> m_environment;
};

/// Whether a program can be found.
bool isInstalled(const std::string& program);

}  // namespace veldra::live
