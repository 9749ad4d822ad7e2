#pragma once

#include <memory>
#include <string>

namespace veldra {

/// An entry point of a library before it gets its real type.
using EntryPoint = void (*)();

/// A library that was loaded at run time; destroying this unloads it. It needs nothing of the host
/// that loaded it and may outlive that host.
class ILibrary {
 public:
  virtual ~ILibrary() = default;
  /// The exported function of exactly that name, or null.
  virtual EntryPoint find(const char* name) const = 0;
};

/// Loads libraries at run time.
class ILibraries {
 public:
  virtual ~ILibraries() = default;
  /// Loads the library of that absolute path, with everything that it needs, and keeps its names
  /// out of those of the program and of other libraries. Null, with the system's words in
  /// `errorText`, when it cannot be loaded; a relative path is refused, because the current
  /// directory belongs to whoever sent the model.
  virtual std::unique_ptr<ILibrary> load(const std::string& path, std::string& errorText) = 0;
};

}  // namespace veldra
