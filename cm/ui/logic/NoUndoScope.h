#pragma once

#include "cm/host/Host.h"

namespace veldra {

/// The host's transaction around changes that nobody would want to take back.
class NoUndoScope {
 public:
  NoUndoScope() {
    Host* const host = installedHost();
    m_undoer = host != nullptr ? host->undoer() : nullptr;
    if (m_undoer != nullptr) m_undoer->startDoNothingTransaction();
  }
  NoUndoScope(const NoUndoScope&) = delete;
  NoUndoScope& operator=(const NoUndoScope&) = delete;
  ~NoUndoScope() {
    if (m_undoer != nullptr) m_undoer->endDoNothingTransaction();
  }

 private:
  Undoer* m_undoer;
};

}  // namespace veldra
