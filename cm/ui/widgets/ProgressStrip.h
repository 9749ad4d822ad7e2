#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QWidget>
#include <string>

#include "cm/host/IProgress.h"
#include "cm/ui/logic/BatchResults.h"

namespace veldra {

/// Shows where the running command stands, and remembers how its units end. It repaints
/// itself, because the command keeps the event loop waiting.
class ProgressStrip : public QWidget, public IProgress {
  Q_OBJECT

 public:
  explicit ProgressStrip(QWidget* parent = nullptr);

  void begin(const QString& command);
  void finish();
  /// How the units of the last command ended.
  BatchResults& results() { return m_results; }

  void unitStarted(const ProgressStep& step) override;
  void unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words) override;
  /// Names the function of the provider before it is called, because a call that does not come back
  /// holds this thread.
  void providerCallStarted(const char* entryPoint) override;
  void providerCallEnded() override;
  /// Paints what has changed without taking any input.
  static void keepPainting();

 private:
  void say(const QString& text);

  QLabel* m_text;
  QProgressBar* m_bar;
  QElapsedTimer m_clock;
  QString m_command;
  QString m_step;  ///< What is said of the unit at hand.
  BatchResults m_results;
};

}  // namespace veldra
