#pragma once

#include <string>
#include <utility>

namespace veldra {

/// The question whether a unit that the model does not have yet is to be loaded into it. What
/// decides stands here; the host shows the window (`IUserMessages::askPartialLoad`).
class CMPartialLoadQuestionDlg {
 public:
  /// `unitName` is shown in a field of its own.
  CMPartialLoadQuestionDlg(std::string text, std::string unitName)
      : m_text(std::move(text)), m_unitName(std::move(unitName)) {}
  /// `MessageBox::AnswerYes`, `AnswerNo` or `AnswerCancel`. A remembered answer for all answers at
  /// once, without a window.
  int DoModal();

 private:
  std::string m_text;
  std::string m_unitName;
};

/// The answer that is remembered while this lives; afterwards none is.
class PartialLoadAnswer {
 public:
  explicit PartialLoadAnswer(const std::string& answer = {});
  PartialLoadAnswer(const PartialLoadAnswer&) = delete;
  PartialLoadAnswer& operator=(const PartialLoadAnswer&) = delete;
  ~PartialLoadAnswer();
};

}  // namespace veldra
