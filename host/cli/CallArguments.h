#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cm/core/CMArgument.h"
#include "cm/core/CMArguments.h"

namespace veldra::host::cli {

/// In a dry run no file for the comment is made; its path stands as this in commands.
inline constexpr char PlannedCommentFile[] = "\x01comment\x01";

/// The values of one call, in the order in which commands ask them.
class CallArguments {
 public:
  template <class Argument, class... Values>
  void add(Values&&... values) {
    m_owned.push_back(std::make_unique<Argument>(std::forward<Values>(values)...));
    m_list.push_back(m_owned.back().get());
  }
  ArgumentList& list() { return m_list; }

 private:
  std::vector<std::unique_ptr<CMArgument>> m_owned;
  ArgumentList m_list;
};

/// The same for the list of units that a batch command gets.
inline constexpr char PlannedUnitList[] = "\x01units\x01";

/// "logFile" and "unitList" of a dry run.
class PlannedFiles : public CMUserBasedArgument {
 public:
  int isNamed(const std::string& keyword) const override;
  std::string substitute(const std::string& keyword) override;
};

/// "log" as a provider gets it: byte for byte, with nothing quoted.
class ProviderComment : public CMUserBasedArgument {
 public:
  explicit ProviderComment(std::string comment) : m_comment(std::move(comment)) {}
  int isNamed(const std::string& keyword) const override;
  std::string substitute(const std::string& keyword) override;

 private:
  std::string m_comment;
};

/// What every operation on units is called with.
struct CallValues {
  CMMode::Mode mode = CMMode::ReadOnly;
  std::string label{};
  std::string comment{};
  std::string projectDirectory{};
  bool isPlan = false;
};

CallArguments callArguments(const CallValues& values);

}  // namespace veldra::host::cli
