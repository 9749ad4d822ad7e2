#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace veldra {

/// Says how many units the last command failed on, and offers to select them.
class FailureStrip : public QWidget {
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
