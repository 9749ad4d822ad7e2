#include "cm/core/KeptCopy.h"

#include <utility>

#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"

namespace veldra {

namespace {
IKeptCopies* keptCopies() {
  Host* const host = installedHost();
  return host != nullptr ? host->keptCopies() : nullptr;
}
}  // namespace

KeptCopy::KeptCopy(KeepRule rule, std::string fullFileName, const char* operation)
    : m_file(std::move(fullFileName)) {
  const bool isMeant = rule == KeepRule::EveryFile ||
                       (rule == KeepRule::WritableFiles && omFileHasWritePermission(m_file));
  if (!isMeant || keptCopies() == nullptr) return;
  std::string reason;
  m_isKept = keptCopies()->keep(m_file, operation, reason);
  if (!m_isKept) m_objection = formatMessage(MessageId::CopyNotKept, {m_file, reason});
}

KeptCopy::~KeptCopy() {
  if (!m_isKept || keptCopies() == nullptr) return;
  try {
    keptCopies()->settle(m_file);
  } catch (...) {
    // A copy too many does no harm.
    VELDRA_TRACE("The host failed to settle the copy of ", m_file);
  }
}

}  // namespace veldra
