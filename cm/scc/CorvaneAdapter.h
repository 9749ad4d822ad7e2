#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cm/host/Export.h"
#include "cm/scc/ProviderAdapter.h"

namespace veldra {

/// A provider whose work is ordered by tasks. Check-outs belong to the default task; where there is
/// none, the user chooses or makes one first. Entry points that the provider does not export are
/// never called.
///
/// The commands run in a transaction of their own and answer 1 for success; 0 when the provider
/// lacks the entry point, is not connected or refuses: the user has then been told.
class VELDRA_CM_EXPORT CorvaneAdapter : public ProviderAdapter {
 public:
  [[nodiscard]] bool beforeCheckOut(const pvContextStruct& context, std::string& comment) override;

  /// The open tasks of the user.
  static int ListTasks(std::vector<std::string>& tasks);
  /// The task that work belongs to at present; empty when there is none.
  static int GetDefaultTask(std::string& task);
  static int SetTask(const std::string& task);
  static int CreateTask(const std::string& task, const std::string& description);
  /// Checks in everything that belongs to the task.
  static int CheckinTask(const std::string& task, const std::string& comment);
  /// The provider's own window about the task.
  static int ShowTask(const std::string& task);

 private:
  std::optional<bool> m_hasTask;  ///< Nothing as long as nobody was asked.
};

}  // namespace veldra
