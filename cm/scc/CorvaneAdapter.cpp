#include "cm/scc/CorvaneAdapter.h"

#include <algorithm>
#include <optional>

#include "cm/core/FacadeEntry.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ProviderState.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/TaskCalls.h"

namespace veldra {

namespace {

constexpr char TaskContextLine[] = "Getting SCC Context to perform task command";

/// Runs a command on the project's context when the provider exports its entry point.
template <class Function, class Command>
int runCommand(EntrySlot<Function>& slot, const char* name, Command command) {
  return enterFacade(TxnFreeCommand, [&] {
    const pvContextStruct* const context = contextFor(nullptr, TaskContextLine);
    if (context == nullptr) return 0;
    if (!providerState().dll.has(slot)) {
      notifyUserAndAsk(formatMessage(MessageId::ProviderLacks, {name, slot.name}),
                       MessageBox::IconError);
      return 0;
    }
    return succeeds(command(TaskCalls(*context)), nullptr) ? 1 : 0;
  });
}

/// Makes the task first when it is none of those that exist.
bool setOrCreate(const TaskCalls& calls, const std::string& task,
                 const std::vector<std::string>& tasks) {
  if (std::ranges::find(tasks, task) == tasks.end() && !succeeds(calls.create(task, ""), nullptr)) {
    return false;
  }
  return succeeds(calls.set(task), nullptr);
}

/// Sees to it that there is a task that work belongs to; false when there is none in the end.
bool chooseTask(const TaskCalls& calls) {
  std::string task;
  if (!succeeds(calls.getDefault(task), nullptr)) return false;
  if (!task.empty()) return true;
  std::vector<std::string> tasks;
  if (!succeeds(calls.list(tasks), nullptr)) return false;
  const std::optional<std::string> chosen = askForText(loadMessage(MessageId::TaskQuestion), tasks);
  return chosen && !chosen->empty() && setOrCreate(calls, *chosen, tasks);
}

}  // namespace

bool CorvaneAdapter::beforeCheckOut(const pvContextStruct& context, std::string& /*comment*/) {
  if (!providerState().dll.has(providerState().dll.SccSetTask)) return true;
  if (!m_hasTask) m_hasTask = chooseTask(TaskCalls(context));
  return *m_hasTask;
}

int CorvaneAdapter::ListTasks(std::vector<std::string>& tasks) {
  return runCommand(providerState().dll.SccListTasks, "List Tasks",
                    [&](const TaskCalls& calls) { return calls.list(tasks); });
}

int CorvaneAdapter::GetDefaultTask(std::string& task) {
  return runCommand(providerState().dll.SccGetDefaultTask, "Default Task",
                    [&](const TaskCalls& calls) { return calls.getDefault(task); });
}

int CorvaneAdapter::SetTask(const std::string& task) {
  return runCommand(providerState().dll.SccSetTask, "Set Task",
                    [&](const TaskCalls& calls) { return calls.set(task); });
}

int CorvaneAdapter::CreateTask(const std::string& task, const std::string& description) {
  return runCommand(providerState().dll.SccCreateTask, "Create Task",
                    [&](const TaskCalls& calls) { return calls.create(task, description); });
}

int CorvaneAdapter::CheckinTask(const std::string& task, const std::string& comment) {
  return runCommand(providerState().dll.SccCheckinTask, "Check In Task",
                    [&](const TaskCalls& calls) { return calls.checkIn(task, comment); });
}

int CorvaneAdapter::ShowTask(const std::string& task) {
  return runCommand(providerState().dll.SccShowTask, "Show Task",
                    [&](const TaskCalls& calls) { return calls.show(task); });
}

}  // namespace veldra
