#pragma once

#include "cm/ui/options/OptionDialog.h"

namespace veldra {

/// Options of a check-out with a command-line tool.
class VELDRA_CM_UI_EXPORT CCMCoInfoDlg : public OptionDialog {
  Q_OBJECT

 public:
  explicit CCMCoInfoDlg(const OptionPresets& presets, QWidget* parent = nullptr);
  CommandOptions options() const override;

 private:
  QLineEdit* m_label;
  QCheckBox* m_lock;
  QCheckBox* m_descendants;
  QCheckBox* m_informationFiles;
};

}  // namespace veldra
