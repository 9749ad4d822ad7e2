#include "cm/scc/TaskCalls.h"

#include "cm/scc/CallbackThread.h"
#include "cm/scc/ProviderBuffer.h"
#include "cm/scc/ProviderCall.h"

namespace veldra {

namespace {

scc::BOOL SCC_CALL collectTask(scc::LPVOID tasks, scc::LPCSTR name) {
  if (tasks == nullptr || name == nullptr) return 1;
  auto* const list = static_cast<std::vector<std::string>*>(tasks);
  CallbackThread::run([list, task = std::string(name)] { list->push_back(task); }, list);
  return 1;
}

template <class Function, class... Arguments>
long callTraced(EntrySlot<Function>& slot, Arguments... arguments) {
  SCCdll& dll = providerState().dll;
  if (!dll.has(slot)) return 0;
  const TracedCall traced(slot.name);
  return traced.returned(dll.call(slot, arguments...));
}

}  // namespace

long TaskCalls::list(std::vector<std::string>& tasks) const {
  const CallbackThread::Place place(&tasks);
  return callTraced(providerState().dll.SccListTasks, m_context, parentWindow(), &collectTask,
                    static_cast<void*>(&tasks));
}

long TaskCalls::getDefault(std::string& task) const {
  ProviderBuffer name(scc::TaskNameSize);
  const long code = callTraced(providerState().dll.SccGetDefaultTask, m_context, name.data());
  task = name.text();
  return code;
}

long TaskCalls::set(const std::string& task) const {
  return callTraced(providerState().dll.SccSetTask, m_context, parentWindow(), task.c_str());
}

long TaskCalls::create(const std::string& task, const std::string& description) const {
  return callTraced(providerState().dll.SccCreateTask, m_context, parentWindow(), task.c_str(),
                    description.c_str());
}

long TaskCalls::checkIn(const std::string& task, const std::string& comment) const {
  return callTraced(providerState().dll.SccCheckinTask, m_context, parentWindow(), task.c_str(),
                    comment.c_str());
}

long TaskCalls::show(const std::string& task) const {
  return callTraced(providerState().dll.SccShowTask, m_context, parentWindow(), task.c_str());
}

}  // namespace veldra
