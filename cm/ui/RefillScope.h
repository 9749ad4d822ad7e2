#pragma once

#include "cm/ui/CCMDialog.h"

namespace veldra {

class CCMDialog::RefillScope {
 public:
  explicit RefillScope(CCMDialog& dialog) : m_dialog(dialog) { ++m_dialog.m_refillDepth; }
  RefillScope(const RefillScope&) = delete;
  RefillScope& operator=(const RefillScope&) = delete;
  ~RefillScope() {
    if (--m_dialog.m_refillDepth == 0 && m_dialog.m_isRefillDue) m_dialog.fillViews();
  }

 private:
  CCMDialog& m_dialog;
};

}  // namespace veldra
