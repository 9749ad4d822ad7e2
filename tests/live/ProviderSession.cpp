#include "tests/live/ProviderSession.h"

#include <array>
#include <stdexcept>
#include <utility>

#include "host/platform/Libraries.h"

namespace veldra::live {

using namespace scc;

namespace {

thread_local std::string texts;

LONG SCC_CALL takeText(LPSTR text, LONG kind) {
  if (kind <= SCC_MSG_ERROR) texts.append(text) += '\n';
  return SCC_MSG_RTN_OK;
}

template <std::size_t Size>
std::array<char, Size> bufferWith(const std::string& text) {
  std::array<char, Size> buffer{};
  text.copy(buffer.data(), Size - 1);
  return buffer;
}

LONG countOf(const Names& names) {
  return static_cast<LONG>(names.size());
}

}  // namespace

std::vector<LPCSTR> pointersTo(const Names& names) {
  std::vector<LPCSTR> pointers;
  for (const std::string& name : names) pointers.push_back(name.c_str());
  return pointers;
}

std::string ProviderSession::takeTexts() {
  return std::exchange(texts, {});
}

ProviderSession::ProviderSession() {
  std::string error;
  m_library = host::Libraries().load(VELDRA_SUBVERSION_PROVIDER, error);
  if (!m_library) throw std::runtime_error(error);
  std::array<char, SCC_NAME_SIZE> name{};
  std::array<char, SCC_AUXLABEL_SIZE> label{};
  LONG commentLength = 0;
  const SCCRTN result = entry<SccInitializeFn>("SccInitialize")(
      &m_context, nullptr, "test", name.data(), &m_capabilities, label.data(), &commentLength,
      &commentLength);
  if (result != SCC_OK) throw std::runtime_error("the provider cannot be initialised");
  m_name = name.data();
}

ProviderSession::~ProviderSession() {
  entry<SccUninitializeFn>("SccUninitialize")(m_context);
}

EntryPoint ProviderSession::find(const char* name) const {
  const EntryPoint found = m_library->find(name);
  if (!found) throw std::runtime_error(std::string("no entry point ") + name);
  return found;
}

SCCRTN ProviderSession::connect(const std::string& folder, const std::string& user) {
  auto userName = bufferWith<SCC_USER_SIZE>(user);
  auto project = bufferWith<SCC_PRJPATH_SIZE>("");
  auto local = bufferWith<SCC_LOCALPATH_SIZE>(folder);
  auto aux = bufferWith<SCC_PRJPATH_SIZE>("");
  BOOL isNew = 1;
  const SCCRTN result = entry<SccGetProjPathFn>("SccGetProjPath")(
      m_context, nullptr, userName.data(), project.data(), local.data(), aux.data(), 0, &isNew);
  return result == SCC_OK ? open(project.data(), folder, user) : result;
}

SCCRTN ProviderSession::open(const std::string& url, const std::string& folder,
                             const std::string& user) {
  auto userName = bufferWith<SCC_USER_SIZE>(user);
  auto project = bufferWith<SCC_PRJPATH_SIZE>(url);
  auto aux = bufferWith<SCC_PRJPATH_SIZE>("");
  m_url = url;
  return entry<SccOpenProjectFn>("SccOpenProject")(m_context, nullptr, userName.data(),
                                                   project.data(), folder.c_str(), aux.data(), "",
                                                   takeText, 0);
}

SCCRTN ProviderSession::close() {
  return entry<SccCloseProjectFn>("SccCloseProject")(m_context);
}

SCCRTN ProviderSession::add(const Names& files, LONG flags) {
  std::vector<LONG> perFile(files.size(), flags);
  return entry<SccAddFn>("SccAdd")(m_context, nullptr, countOf(files), pointersTo(files).data(),
                                   "added", perFile.data(), nullptr);
}

SCCRTN ProviderSession::checkOut(const Names& files, const std::string& comment) {
  return entry<SccCheckoutFn>("SccCheckout")(m_context, nullptr, countOf(files),
                                             pointersTo(files).data(), comment.c_str(), 0, nullptr);
}

SCCRTN ProviderSession::checkIn(const Names& files, const std::string& comment, LONG flags) {
  return entry<SccCheckinFn>("SccCheckin")(m_context, nullptr, countOf(files),
                                           pointersTo(files).data(), comment.c_str(), flags,
                                           nullptr);
}

SCCRTN ProviderSession::undo(const Names& files) {
  return entry<SccUncheckoutFn>("SccUncheckout")(m_context, nullptr, countOf(files),
                                                 pointersTo(files).data(), 0, nullptr);
}

SCCRTN ProviderSession::get(const Names& files, LONG flags) {
  return entry<SccGetFn>("SccGet")(m_context, nullptr, countOf(files), pointersTo(files).data(),
                                   flags, nullptr);
}

SCCRTN ProviderSession::remove(const Names& files) {
  return entry<SccRemoveFn>("SccRemove")(m_context, nullptr, countOf(files),
                                         pointersTo(files).data(), "removed", 0, nullptr);
}

SCCRTN ProviderSession::rename(const std::string& from, const std::string& to) {
  return entry<SccRenameFn>("SccRename")(m_context, nullptr, from.c_str(), to.c_str());
}

std::vector<LONG> ProviderSession::query(const Names& files) {
  std::vector<LONG> status(files.size());
  const SCCRTN result = entry<SccQueryInfoFn>("SccQueryInfo")(
      m_context, countOf(files), pointersTo(files).data(), status.data());
  return result == SCC_OK ? status : std::vector<LONG>{result};
}

LONG ProviderSession::status(const std::string& file) {
  return query({file}).front();
}

}  // namespace veldra::live
