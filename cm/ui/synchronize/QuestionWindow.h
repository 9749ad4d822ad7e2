#pragma once

#include <QDialog>
#include <string>

#include "cm/ui/Export.h"

namespace veldra {

/// A question whose answer may hold for everything that follows: Yes, Yes to All, No, No to All and
/// Cancel. Hosts use it for `IUserMessages::askOverwrite` and `askPartialLoad`.
class VELDRA_CM_UI_EXPORT QuestionWindow : public QDialog {
  Q_OBJECT

 public:
  /// With a unit's name the window has a field that shows it.
  QuestionWindow(const std::string& text, const std::string& unitName, QWidget* parent = nullptr);

  /// "yes", "no", "yestoall", "notoall", or "cancel", which closing the window means, too.
  const std::string& answer() const { return m_answer; }

  /// Shows such a window modally, above the active one without a parent; its answer.
  static std::string ask(const std::string& text, const std::string& unitName = {},
                         QWidget* parent = nullptr);

 private:
  std::string m_answer = "cancel";
};

}  // namespace veldra
