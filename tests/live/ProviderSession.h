#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cm/host/ILibraries.h"
#include "cm/scc/SccInterface.h"

namespace veldra::live {

using Names = std::vector<std::string>;

/// One context of the Subversion provider, driven through the interface alone, as any program
/// would.
class ProviderSession {
 public:
  /// Loads the library and initialises a context.
  ProviderSession();
  ProviderSession(const ProviderSession&) = delete;
  ProviderSession& operator=(const ProviderSession&) = delete;
  ~ProviderSession();

  /// The entry point of that name; fails the test's program when there is none.
  template <class Function>
  Function* entry(const char* name) const {
    return reinterpret_cast<Function*>(find(name));
  }

  /// Opens the project of a folder; the repository is made when there is none.
  scc::SCCRTN connect(const std::string& folder, const std::string& user = {});
  scc::SCCRTN open(const std::string& url, const std::string& folder, const std::string& user = {});
  scc::SCCRTN close();

  scc::SCCRTN add(const Names& files, scc::LONG flags = 0);
  scc::SCCRTN checkOut(const Names& files, const std::string& comment = {});
  scc::SCCRTN checkIn(const Names& files, const std::string& comment, scc::LONG flags = 0);
  scc::SCCRTN undo(const Names& files);
  scc::SCCRTN get(const Names& files, scc::LONG flags = 0);
  scc::SCCRTN remove(const Names& files);
  scc::SCCRTN rename(const std::string& from, const std::string& to);
  /// The status words, or one entry with the result when it is an error.
  std::vector<scc::LONG> query(const Names& files);
  scc::LONG status(const std::string& file);

  scc::LPVOID context() const { return m_context; }
  scc::LONG capabilities() const { return m_capabilities; }
  const std::string& name() const { return m_name; }
  const std::string& url() const { return m_url; }

  /// What the provider has said since the last call of this, one text a line.
  static std::string takeTexts();

 private:
  EntryPoint find(const char* name) const;

  std::unique_ptr<ILibrary> m_library;
  scc::LPVOID m_context = nullptr;
  scc::LONG m_capabilities = 0;
  std::string m_name;
  std::string m_url;
};

/// The names as the interface takes them; they must outlive it.
std::vector<scc::LPCSTR> pointersTo(const Names& names);

}  // namespace veldra::live
