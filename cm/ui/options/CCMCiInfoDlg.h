#pragma once

#include "cm/ui/options/OptionDialog.h"

namespace veldra {

/// Options of a check-in, and of adding to the archive, with a command-line tool.
class VELDRA_CM_UI_EXPORT CCMCiInfoDlg : public OptionDialog {
  Q_OBJECT

 public:
  explicit CCMCiInfoDlg(const OptionPresets& presets, QWidget* parent = nullptr);
  CommandOptions options() const override;

 private:
  QPlainTextEdit* m_comment;
  QLineEdit* m_label;
  QCheckBox* m_mode;
  QCheckBox* m_descendants;
  QCheckBox* m_informationFiles;
};

}  // namespace veldra
