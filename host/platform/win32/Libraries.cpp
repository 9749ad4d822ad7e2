#include "host/platform/Libraries.h"

#include <windows.h>

#include <filesystem>

#include "host/platform/SystemError.h"

namespace veldra::host {
namespace {

class Library : public ILibrary {
 public:
  explicit Library(HMODULE handle) : m_handle(handle) {}
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;
  ~Library() override { FreeLibrary(m_handle); }

  EntryPoint find(const char* name) const override {
    return reinterpret_cast<EntryPoint>(GetProcAddress(m_handle, name));
  }

 private:
  HMODULE m_handle;
};

}  // namespace

std::unique_ptr<ILibrary> Libraries::load(const std::string& path, std::string& errorText) {
  if (!std::filesystem::path(path).is_absolute() || path.find('\0') != std::string::npos) {
    errorText = "'" + path + "' is no absolute path.";
    return nullptr;
  }
  // What a library needs is looked for beside it, never in the current directory.
  if (HMODULE handle = LoadLibraryExA(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)) {
    return std::make_unique<Library>(handle);
  }
  errorText = systemErrorText(static_cast<int>(GetLastError()));
  return nullptr;
}

}  // namespace veldra::host
