#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

#include "cm/host/IProgress.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace veldra::host::desktop {

class WorkWatch;

/// Comes up when work takes longer than a moment: which unit, how far, how long still, and Cancel.
class ProgressPopup : public QDialog {
  Q_OBJECT

 public:
  explicit ProgressPopup(WorkWatch& work, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void begin();
  void showStep(const ProgressStep& step);
  void end();

  WorkWatch& m_work;
  QTimer m_delay;
  QElapsedTimer m_clock;
  QLabel* m_operation;
  QLabel* m_unit;
  QLabel* m_left;
  QProgressBar* m_bar;
  QPushButton* m_cancel;
};

}  // namespace veldra::host::desktop
