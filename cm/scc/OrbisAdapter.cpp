#include "cm/scc/OrbisAdapter.h"

#include <optional>
#include <utility>
#include <vector>

#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ProviderState.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/TaskCalls.h"

namespace veldra {

bool OrbisAdapter::beforeCheckOut(const pvContextStruct& context, std::string& comment) {
  ProviderState& state = providerState();
  if (!std::exchange(m_isAsked, true)) {
    std::vector<std::string> proposals;
    if (!state.lastActivity.empty()) proposals.push_back(state.lastActivity);
    m_activity = askForText(loadMessage(MessageId::ActivityQuestion), proposals).value_or("");
    if (!m_activity.empty()) state.lastActivity = m_activity;
    if (!m_activity.empty() && state.dll.has(state.dll.SccSetTask) &&
        !succeeds(TaskCalls(context).set(m_activity), nullptr)) {
      m_activity.clear();
    }
  }
  if (m_activity.empty()) return false;
  if (state.dll.has(state.dll.SccSetTask)) return true;
  const std::string mark = "[" + m_activity + "]";
  if (!comment.starts_with(mark)) comment = comment.empty() ? mark : mark + " " + comment;
  return true;
}

}  // namespace veldra
