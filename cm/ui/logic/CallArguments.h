#pragma once

#include <memory>
#include <vector>

#include "cm/core/CMArgument.h"
#include "cm/ui/logic/OptionRules.h"

namespace veldra {

/// The arguments of a call, made from what the user chose; alive as long as this.
class DialogArguments {
 public:
  DialogArguments(const CommandRow& row, const CommandOptions& options);
  ArgumentList& list() { return m_list; }

 private:
  void add(std::unique_ptr<CMArgument> argument);
  void addComment(const std::string& comment);

  std::vector<std::unique_ptr<CMArgument>> m_owned;
  ArgumentList m_list;
};

}  // namespace veldra
