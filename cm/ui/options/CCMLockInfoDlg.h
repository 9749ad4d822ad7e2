#pragma once

#include "cm/ui/options/OptionDialog.h"

namespace veldra {

/// Options of locking and unlocking.
class VELDRA_CM_UI_EXPORT CCMLockInfoDlg : public OptionDialog {
  Q_OBJECT

 public:
  explicit CCMLockInfoDlg(const OptionPresets& presets, QWidget* parent = nullptr);
  CommandOptions options() const override;

 private:
  QLineEdit* m_label;
  QCheckBox* m_descendants;
  QCheckBox* m_informationFiles;
};

}  // namespace veldra
