#pragma once

#include "cm/ui/options/OptionDialog.h"

namespace veldra {

/// The branch that a host checks units out to.
class VELDRA_CM_UI_EXPORT CCoBranch : public OptionDialog {
  Q_OBJECT

 public:
  explicit CCoBranch(QWidget* parent = nullptr);
  /// `label` is the branch.
  CommandOptions options() const override;

 private:
  QLineEdit* m_branch;
};

}  // namespace veldra
