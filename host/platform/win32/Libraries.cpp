#include "host/platform/Libraries.h"

#include <windows.h>

#include <array>

#include "host/platform/FileHead.h"
#include "host/platform/FileNames.h"
#include "host/platform/LibraryFormat.h"
#include "host/platform/SystemError.h"
#include "host/platform/win32/OpenFile.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {
namespace {

class Library : public ILibrary {
 public:
  explicit Library(HMODULE handle) : m_handle(handle) {}
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;
  ~Library() override { FreeLibrary(m_handle); }

  EntryPoint find(const char* name) const override {
    return reinterpret_cast<EntryPoint>(reinterpret_cast<void*>(GetProcAddress(m_handle, name)));
  }

 private:
  HMODULE m_handle;
};

/// Why the system would not load it, where its own words do not say.
std::string reasonFor(const std::string& path, int error) {
  std::array<char, 4096> buffer{};
  const FileHead head = readFileHead(path, buffer);
  if (const auto problem = foreignLibraryProblem(path, head.bytes)) return *problem;
  return "'" + path + "' cannot be loaded: " + systemErrorText(error) + ".";
}

}  // namespace

std::unique_ptr<ILibrary> Libraries::load(const std::string& path, std::string& errorText) {
  const std::wstring name = nativePath(path);
  if (!isAbsoluteOnWindows(path) || name.empty()) {
    errorText = "'" + path + "' is no absolute path.";
    return nullptr;
  }
  // What a library needs is looked for beside it and in the system, never in the current directory
  // or along PATH.
  if (HMODULE handle =
          LoadLibraryExW(name.c_str(), nullptr,
                         LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS)) {
    return std::make_unique<Library>(handle);
  }
  errorText = reasonFor(path, lastError());
  return nullptr;
}

}  // namespace veldra::host
