#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "cm/host/ILibraries.h"

namespace veldra {

/// A library that is loaded while somebody uses it.
class PDLL {
 public:
  PDLL() = default;
  PDLL(const PDLL&) = delete;
  PDLL& operator=(const PDLL&) = delete;

  /// Counts one more user; for the first one the library is loaded from the path. True when that
  /// succeeded: not for later users, and not without a path.
  virtual bool load();
  /// Counts one user less; with the last one the library goes and the path is forgotten. While a
  /// call into the library runs, that waits for its end.
  virtual void release();
  virtual ~PDLL();

  /// False, and nothing changed, while a library is loaded. Null only clears the path.
  bool setPath(const char* path);

  bool isLoaded() const { return m_library != nullptr; }
  /// The system's words for a load that failed; empty otherwise.
  const std::string& loadError() const { return m_loadError; }

 protected:
  /// Null without a library, or when it has no such entry point.
  EntryPoint find(const char* name) const;
  /// Grows with every load: what was found in a former library is stale.
  unsigned generation() const { return m_generation; }

  /// Around a call into the library.
  void callBegins() { ++m_callDepth; }
  void callEnds();
  /// Lets the library go without unloading it, because its code may still be at work.
  void abandon();

 private:
  void unload();

  std::int32_t m_useCount = 0;
  std::unique_ptr<ILibrary> m_library;
  std::optional<std::string> m_path;
  std::string m_loadError;
  unsigned m_generation = 0;
  int m_callDepth = 0;
  bool m_unloadsAfterCall = false;
};

}  // namespace veldra
