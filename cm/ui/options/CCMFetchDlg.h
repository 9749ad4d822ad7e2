#pragma once

#include "cm/ui/options/OptionDialog.h"

namespace veldra {

/// The version that a unit of the model is compared with.
class VELDRA_CM_UI_EXPORT CCMFetchDlg : public OptionDialog {
  Q_OBJECT

 public:
  explicit CCMFetchDlg(QWidget* parent = nullptr);
  CCMFetchDlg(const OptionPresets& presets, QWidget* parent);
  /// `label` is the label or version.
  CommandOptions options() const override;

 private:
  QLineEdit* m_version;
  QCheckBox* m_descendants;
};

}  // namespace veldra
