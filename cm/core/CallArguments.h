#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cm/core/CMArgument.h"
#include "cm/core/CMArguments.h"
#include "cm/host/Export.h"

namespace veldra {

/// What a command is called with beside its units.
namespace CallPart {
inline constexpr unsigned Mode = 1;
inline constexpr unsigned Label = 2;
inline constexpr unsigned Comment = 4;
inline constexpr unsigned CommentFile = 8;  ///< A file that holds the comment byte for byte.
inline constexpr unsigned Workspace = 16;
inline constexpr unsigned All = Mode | Label | Comment | CommentFile | Workspace;
}  // namespace CallPart

/// The values of one call.
struct CallValues {
  unsigned parts = CallPart::All;  ///< Which of them the command is told.
  CMMode::Mode mode = CMMode::ReadOnly;
  std::string label{};
  std::string comment{};
  std::string projectDirectory{};
};

/// The arguments of a call, in the order in which commands ask them; alive as long as this.
class CallArguments {
 public:
  template <class Argument, class... Values>
  void add(Values&&... values) {
    m_owned.push_back(std::make_unique<Argument>(std::forward<Values>(values)...));
    m_list.push_back(m_owned.back().get());
  }
  /// One that answers before all others.
  template <class Argument, class... Values>
  void addFirst(Values&&... values) {
    m_owned.push_back(std::make_unique<Argument>(std::forward<Values>(values)...));
    m_list.insert(m_list.begin(), m_owned.back().get());
  }
  ArgumentList& list() { return m_list; }

 private:
  std::vector<std::unique_ptr<CMArgument>> m_owned;
  ArgumentList m_list;
};

VELDRA_CM_EXPORT CallArguments callArguments(const CallValues& values);

}  // namespace veldra
