// A provider that does nothing but write down what it is asked.

#include "tests/providers/recording/RecordedProvider.h"

#include <cstring>

#include "cm/scc/HolderEntryPoint.h"
#include "cm/scc/SccInterface.h"
#include "cm/scc/TaskEntryPoints.h"

namespace {

using namespace veldra::scc;

veldra::test::RecordedProvider recorded;
LPTEXTOUTPROC textOut = nullptr;
int theContext = 0;

SCCRTN answer(const std::string& entryPoint, const std::string& details = {}) {
  recorded.calls.push_back(details.empty() ? entryPoint : entryPoint + " " + details);
  if (recorded.during) recorded.during(entryPoint);
  const auto result = recorded.results.find(entryPoint);
  return result == recorded.results.end() ? SCC_OK : result->second;
}

std::string listOf(LONG count, LPCSTR* files) {
  std::string text;
  for (LONG i = 0; i < count; ++i) text += (i > 0 ? " " : "") + std::string(files[i]);
  return text;
}

std::string quoted(LPCSTR text) {
  return text == nullptr ? "(null)" : "'" + std::string(text) + "'";
}

LONG statusOf(LPCSTR file) {
  const auto known = recorded.status.find(file);
  return known == recorded.status.end() ? LONG{SCC_STATUS_CONTROLLED} : known->second;
}

void fill(LPSTR buffer, const std::string& text) {
  std::memcpy(buffer, text.c_str(), text.size() + 1);
}

}  // namespace

extern "C" {

SCC_EXPORT veldra::test::RecordedProvider* recordedProvider() {
  return &recorded;
}

SCC_EXPORT SCCRTN SccInitialize(LPVOID* context, HWND, LPCSTR caller, LPSTR name,
                                LPLONG capabilities, LPSTR label, LPLONG, LPLONG) {
  *context = &theContext;
  fill(name, recorded.name);
  fill(label, "Label");
  *capabilities = static_cast<LONG>(recorded.capabilities);
  return answer("SccInitialize", caller);
}
SCC_EXPORT LONG SccGetVersion() {
  return SCC_VERSION_1_3;
}
SCC_EXPORT SCCRTN SccUninitialize(LPVOID) {
  return answer("SccUninitialize");
}
SCC_EXPORT SCCRTN SccGetProjPath(LPVOID, HWND, LPSTR user, LPSTR project, LPSTR local, LPSTR aux,
                                 BOOL mayChange, LPBOOL isNew) {
  const std::string asked = quoted(user) + quoted(project) + quoted(local) + quoted(aux);
  fill(project, recorded.project);
  fill(aux, recorded.auxPath);
  return answer("SccGetProjPath", asked + std::to_string(mayChange) + " " + std::to_string(*isNew));
}
SCC_EXPORT SCCRTN SccOpenProject(LPVOID, HWND, LPSTR user, LPCSTR project, LPCSTR local, LPSTR aux,
                                 LPCSTR comment, LPTEXTOUTPROC out, LONG flags) {
  textOut = out;
  return answer("SccOpenProject", quoted(user) + quoted(project) + quoted(local) + quoted(aux) +
                                      quoted(comment) + (out != nullptr ? "text" : "silent") +
                                      std::to_string(flags));
}
SCC_EXPORT SCCRTN SccCloseProject(LPVOID) {
  return answer("SccCloseProject");
}
SCC_EXPORT SCCRTN SccSetOption(LPVOID, LONG option, LONG value) {
  return answer("SccSetOption", std::to_string(option) + " " + std::to_string(value));
}
SCC_EXPORT SCCRTN SccQueryInfo(LPVOID, LONG count, LPCSTR* files, LPLONG status) {
  for (LONG i = 0; i < count; ++i) status[i] = statusOf(files[i]);
  return answer("SccQueryInfo", listOf(count, files));
}
SCC_EXPORT SCCRTN SccPopulateList(LPVOID, SCCCOMMAND command, LONG count, LPCSTR* files,
                                  POPLISTFUNC populate, LPVOID data, LPLONG, LONG flags) {
  for (std::string name : recorded.listed) populate(data, 1, 1, name.data());
  return answer("SccPopulateList",
                std::to_string(command) + " " + listOf(count, files) + " " + std::to_string(flags));
}
SCC_EXPORT SCCRTN SccGet(LPVOID, HWND, LONG count, LPCSTR* files, LONG flags, LPCMDOPTS) {
  return answer("SccGet", listOf(count, files) + " " + std::to_string(flags));
}
SCC_EXPORT SCCRTN SccCheckout(LPVOID, HWND, LONG count, LPCSTR* files, LPCSTR comment, LONG flags,
                              LPCMDOPTS) {
  if (textOut != nullptr && !recorded.text.empty()) textOut(recorded.text.data(), SCC_MSG_INFO);
  return answer("SccCheckout",
                listOf(count, files) + " " + quoted(comment) + " " + std::to_string(flags));
}
SCC_EXPORT SCCRTN SccCheckin(LPVOID, HWND, LONG count, LPCSTR* files, LPCSTR comment, LONG flags,
                             LPCMDOPTS) {
  return answer("SccCheckin",
                listOf(count, files) + " " + quoted(comment) + " " + std::to_string(flags));
}
SCC_EXPORT SCCRTN SccUncheckout(LPVOID, HWND, LONG count, LPCSTR* files, LONG flags, LPCMDOPTS) {
  return answer("SccUncheckout", listOf(count, files) + " " + std::to_string(flags));
}
SCC_EXPORT SCCRTN SccAdd(LPVOID, HWND, LONG count, LPCSTR* files, LPCSTR comment, LPLONG types,
                         LPCMDOPTS) {
  std::string details = listOf(count, files) + " " + quoted(comment);
  for (LONG i = 0; i < count; ++i) details += " " + std::to_string(types[i]);
  return answer("SccAdd", details);
}
SCC_EXPORT SCCRTN SccRemove(LPVOID, HWND, LONG count, LPCSTR* files, LPCSTR comment, LONG,
                            LPCMDOPTS) {
  return answer("SccRemove", listOf(count, files) + " " + quoted(comment));
}
SCC_EXPORT SCCRTN SccRename(LPVOID, HWND, LPCSTR from, LPCSTR to) {
  return answer("SccRename", std::string(from) + " " + to);
}
SCC_EXPORT SCCRTN SccDirQueryInfo(LPVOID, LONG count, LPCSTR* directories, LPLONG status) {
  for (LONG i = 0; i < count; ++i) status[i] = statusOf(directories[i]) & SCC_DIRSTATUS_CONTROLLED;
  return answer("SccDirQueryInfo", listOf(count, directories));
}
SCC_EXPORT SCCRTN SccHistory(LPVOID, HWND, LONG count, LPCSTR* files, LONG, LPCMDOPTS) {
  return answer("SccHistory", listOf(count, files));
}
SCC_EXPORT SCCRTN SccProperties(LPVOID, HWND, LPCSTR file) {
  return answer("SccProperties", file);
}
SCC_EXPORT SCCRTN SccQueryHolders(LPVOID, LONG count, LPCSTR* files, HOLDERFUNC report,
                                  LPVOID data) {
  for (const auto& [file, holder] : recorded.holders) report(data, file.c_str(), holder.c_str());
  return answer("SccQueryHolders", listOf(count, files));
}
SCC_EXPORT SCCRTN SccListTasks(LPVOID, HWND, TASKLISTFUNC report, LPVOID data) {
  for (const std::string& task : recorded.tasks) report(data, task.c_str());
  return answer("SccListTasks");
}
SCC_EXPORT SCCRTN SccGetDefaultTask(LPVOID, LPSTR task) {
  fill(task, recorded.defaultTask);
  return answer("SccGetDefaultTask");
}
SCC_EXPORT SCCRTN SccSetTask(LPVOID, HWND, LPCSTR task) {
  return answer("SccSetTask", task);
}
SCC_EXPORT SCCRTN SccCreateTask(LPVOID, HWND, LPCSTR task, LPCSTR) {
  return answer("SccCreateTask", task);
}
SCC_EXPORT SCCRTN SccCheckinTask(LPVOID, HWND, LPCSTR task, LPCSTR comment) {
  return answer("SccCheckinTask", std::string(task) + " " + quoted(comment));
}

}  // extern "C"
