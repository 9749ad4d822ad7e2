#include "providers/subversion/session/FileNames.h"

#include <svn_dirent_uri.h>

#include <cstring>

#include "providers/subversion/runtime/Failure.h"
#include "providers/subversion/runtime/Pool.h"

namespace veldra::subversion {

using namespace scc;

namespace {

std::string canonical(LPCSTR name, apr_pool_t* pool) {
  if (!name || *name == '\0') throw Failure(SCC_E_INVALIDFILEPATH, "A file name is missing.");
  const char* internal = svn_dirent_internal_style(name, pool);
  if (!svn_dirent_is_absolute(internal)) {
    throw Failure(SCC_E_INVALIDFILEPATH, "'" + std::string(name) + "' is no absolute file name.");
  }
  return internal;
}

}  // namespace

std::string nameOf(LPCSTR name) {
  return canonical(name, Pool());
}

FileNames namesOf(LONG count, LPCSTR const* names) {
  if (count > 0 && !names) throw Failure(SCC_E_INVALIDFILEPATH, "No file names are given.");
  FileNames result;
  Pool pool;
  for (LONG i = 0; i < count; ++i) {
    result.push_back(canonical(names[i], pool));
    if (i % 256 == 255) pool.clear();
  }
  return result;
}

void copyInto(LPSTR buffer, std::size_t size, const std::string& text, const char* what) {
  if (!buffer) return;
  if (text.size() >= size) {
    throw Failure(SCC_E_INVALIDFILEPATH,
                  std::string(what) + " '" + text + "' is too long for this interface.");
  }
  std::memcpy(buffer, text.c_str(), text.size() + 1);
}

std::string lastPartOf(const std::string& name) {
  return svn_dirent_basename(name.c_str(), nullptr);
}

std::string directoryOf(const std::string& name) {
  const std::size_t slash = name.rfind('/');
  if (slash == std::string::npos) return {};
  const bool isBelowRoot = slash == 0 || name[slash - 1] == ':';
  return name.substr(0, isBelowRoot ? slash + 1 : slash);
}

}  // namespace veldra::subversion
