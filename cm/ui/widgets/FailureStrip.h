#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "cm/ui/Export.h"

namespace veldra {

/// Says how many units the last command failed on, and offers to select them.
class VELDRA_CM_UI_EXPORT FailureStrip : public QWidget {
  Q_OBJECT

 public:
  explicit FailureStrip(QWidget* parent = nullptr);
  /// Hides itself for none.
  void tell(const QString& command, std::size_t count);

 Q_SIGNALS:
  void selectWanted();

 private:
  QLabel* m_text;
  QPushButton* m_select;
};

}  // namespace veldra
