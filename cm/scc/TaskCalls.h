#pragma once

#include <string>
#include <vector>

#include "cm/scc/pvContextStruct.h"

namespace veldra {

/// The task entry points on an open context, between their trace lines. Each answers the provider's
/// code; 0, and nothing happened, when the provider does not export it.
class TaskCalls {
 public:
  explicit TaskCalls(const pvContextStruct& context) : m_context(context.getpvContextPtr()) {}

  long list(std::vector<std::string>& tasks) const;
  long getDefault(std::string& task) const;
  long set(const std::string& task) const;
  long create(const std::string& task, const std::string& description) const;
  long checkIn(const std::string& task, const std::string& comment) const;
  long show(const std::string& task) const;

 private:
  void* m_context;
};

}  // namespace veldra
