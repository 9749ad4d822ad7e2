#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QWidget>
#include <set>
#include <string>

#include "cm/host/IProgress.h"

namespace veldra {

/// Shows where the running command stands, and remembers which units it failed on. It repaints
/// itself, because the command keeps the event loop waiting.
class ProgressStrip : public QWidget, public IProgress {
  Q_OBJECT

 public:
  explicit ProgressStrip(QWidget* parent = nullptr);

  void begin(const QString& command);
  void finish();
  /// The files of the units that the last command failed on.
  const std::set<std::string>& failedFiles() const { return m_failed; }

  void unitStarted(const ProgressStep& step) override;
  void unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words) override;
  /// Paints what has changed without taking any input.
  static void keepPainting();

 private:
  QLabel* m_text;
  QProgressBar* m_bar;
  QElapsedTimer m_clock;
  QString m_command;
  std::set<std::string> m_failed;
};

}  // namespace veldra
