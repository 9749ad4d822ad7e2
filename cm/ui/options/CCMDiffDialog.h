#pragma once

#include <string>

#include "cm/ui/options/OptionDialog.h"

namespace veldra {

/// Two versions of the archive that are compared with each other.
class VELDRA_CM_UI_EXPORT CCMDiffDialog : public OptionDialog {
  Q_OBJECT

 public:
  explicit CCMDiffDialog(QWidget* parent = nullptr);
  std::string firstVersion() const;
  std::string secondVersion() const;
  CommandOptions options() const override;

 private:
  QLineEdit* m_first;
  QLineEdit* m_second;
  QCheckBox* m_descendants;
};

}  // namespace veldra
