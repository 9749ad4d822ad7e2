#pragma once

#include <QPushButton>

#include "cm/ui/options/OptionDialog.h"

namespace veldra {

/// Options of a command of a source control provider.
class VELDRA_CM_UI_EXPORT CCMSccInfoDlg : public OptionDialog {
  Q_OBJECT

 public:
  explicit CCMSccInfoDlg(const OptionPresets& presets, QWidget* parent = nullptr);
  CommandOptions options() const override;

 private:
  QPlainTextEdit* m_comment;
  QCheckBox* m_mode;
  QCheckBox* m_descendants;
  QCheckBox* m_informationFiles;
  QPushButton* m_advanced;
};

}  // namespace veldra
