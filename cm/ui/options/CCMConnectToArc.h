#pragma once

#include "cm/ui/options/OptionDialog.h"

namespace veldra {

/// The archive to connect the project to.
class VELDRA_CM_UI_EXPORT CCMConnectToArc : public OptionDialog {
  Q_OBJECT

 public:
  /// Opens with the project's present archive.
  explicit CCMConnectToArc(QWidget* parent = nullptr);
  CommandOptions options() const override;

 private:
  QLineEdit* m_archive;
};

}  // namespace veldra
