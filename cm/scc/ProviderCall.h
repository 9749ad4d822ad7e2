#pragma once

#include <string>
#include <vector>

#include "cm/scc/ProviderState.h"

namespace veldra {

/// The names of a call's files as the provider wants them. Refers to the strings it was made from.
class FileNames {
 public:
  explicit FileNames(const std::vector<std::string>& names);
  explicit FileNames(const std::string& name) : m_names{name.c_str()} {}

  scc::LONG count() const { return static_cast<scc::LONG>(m_names.size()); }
  scc::LPCSTR* data() { return m_names.data(); }

 private:
  std::vector<scc::LPCSTR> m_names;
};

/// Which lines a call leaves in the trace log.
enum class CallLines {
  PreAndReturn,      ///< Check-in.
  PrePostAndReturn,  ///< The others.
};

/// The lines around a call: the first now, the others by `returned`.
class TracedCall {
 public:
  /// For `shown` of the files; a call without files has its own form.
  TracedCall(const char* entryPoint, FileNames& files, long shown, CallLines lines);
  TracedCall(const char* entryPoint, const std::string& file, CallLines lines);
  explicit TracedCall(const char* entryPoint);

  long returned(long code) const;

 private:
  const char* m_entryPoint;
  CallLines m_lines;
};

/// Calls a function of the provider on files, between its trace lines.
template <class Function, class... Rest>
long callOnFiles(EntrySlot<Function>& slot, CallLines lines, void* context, void* window,
                 FileNames& files, Rest... rest) {
  const TracedCall traced(slot.name, files, files.count(), lines);
  return traced.returned(
      providerState().dll.call(slot, context, window, files.count(), files.data(), rest...));
}

/// The window above which a provider opens its dialogs; null when there is none.
void* parentWindow();

}  // namespace veldra
