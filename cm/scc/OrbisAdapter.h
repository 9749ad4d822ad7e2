#pragma once

#include "cm/scc/ProviderAdapter.h"

namespace veldra {

/// A provider whose work is ordered by activities. The user names one before the first check-out of
/// a batch, and it serves the whole batch; the next batch proposes it again. It reaches the
/// provider as its task where it exports `SccSetTask`, and otherwise as the first word of the
/// comment, in brackets.
class OrbisAdapter : public ProviderAdapter {
 public:
  [[nodiscard]] bool beforeCheckOut(const pvContextStruct& context, std::string& comment) override;

 private:
  bool m_isAsked = false;
  std::string m_activity;
};

}  // namespace veldra
