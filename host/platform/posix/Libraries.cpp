#include "host/platform/Libraries.h"

#include <dlfcn.h>

namespace veldra::host {
namespace {

class Library : public ILibrary {
 public:
  explicit Library(void* handle) : m_handle(handle) {}
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;
  ~Library() override { ::dlclose(m_handle); }

  EntryPoint find(const char* name) const override {
    return reinterpret_cast<EntryPoint>(::dlsym(m_handle, name));
  }

 private:
  void* m_handle;
};

}  // namespace

std::unique_ptr<ILibrary> Libraries::load(const std::string& path, std::string& errorText) {
  // A name without a slash would be searched for; a NUL would end the name early.
  if (!path.starts_with('/') || path.find('\0') != std::string::npos) {
    errorText = "'" + path + "' is no absolute path.";
    return nullptr;
  }
  if (void* handle = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    return std::make_unique<Library>(handle);
  }
  const char* reason = ::dlerror();
  errorText = reason ? reason : "'" + path + "' cannot be loaded.";
  return nullptr;
}

}  // namespace veldra::host
