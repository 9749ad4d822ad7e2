#pragma once

#include <string>
#include <utility>

namespace veldra {

/// The question whether a writable file may be overwritten. What decides stands here; the host
/// shows the window (`IUserMessages::askOverwrite`).
class CCMSyncQuestionDlg {
 public:
  explicit CCMSyncQuestionDlg(std::string text) : m_text(std::move(text)) {}
  /// `MessageBox::AnswerYes`, `AnswerNo` or `AnswerCancel`. A remembered answer for all answers at
  /// once, without a window.
  int DoModal();

 private:
  std::string m_text;
};

}  // namespace veldra
