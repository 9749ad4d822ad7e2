#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "cm/host/IProgress.h"
#include "cm/ui/Export.h"

class QLabel;
class QVBoxLayout;

namespace veldra {

class FailureStrip;
class HeldWindow;
class ProgressStrip;

/// A window with commands. Commands are synchronous: while one runs the window paints and shows the
/// progress, but takes no input and cannot be closed; afterwards it says how many units failed.
class VELDRA_CM_UI_EXPORT CommandWindow : public QDialog {
  Q_OBJECT

 public:
  /// The window's place on the screen is remembered under `settingsName`.
  CommandWindow(QString settingsName, QWidget* parent);
  ~CommandWindow() override;

  /// Where the running command of the topmost window is shown; null when no window is open.
  static IProgress* currentProgress();
  /// Paints what has changed without taking input; for hosts that wait for something.
  static void keepPainting();

  /// Whether no window's command is at work. Calls of the module must not overlap, and a host may
  /// open a second window meanwhile. When not, the user has been told.
  static bool allowsAnother();
  /// Whether a window's command is at work: a question or a window above it is not.
  static bool isOneAtWork();

  bool isRunning() const { return m_isRunning; }
  void reject() override;

 protected:
  /// Runs a command, unless one runs already; the focus stays where it was unless the command gives
  /// it away. `caption` is the user's word for it. What the command throws is told to the user.
  void runOnce(const QString& caption, const std::function<void()>& command);
  /// Leaves the focus there when the running command ends.
  void giveFocus(QWidget& widget);
  /// Between these two, units may be replaced or die; the window takes no input.
  void holdInput(const QString& caption);
  void releaseInput();
  /// The command has ended, whatever came of it; buttons may be enabled again.
  virtual void afterCommand() {}

  /// Lets the other main dialogs list the workspace anew, because units are not what they were.
  void refreshOthers() const;

  /// What is seen where the list would be, as long as there is nothing to list.
  QLabel* makeEmptyState(const QString& name);
  /// The column that the window consists of, still without anything.
  QVBoxLayout* layOutColumn();
  /// Ends it with what all windows have: failures, totals, progress and Close.
  void layOutFoot(QVBoxLayout& column);
  QLabel& totals() const { return *m_totals; }

  /// Takes the remembered place, or this size.
  void restorePlace(const QSize& firstSize);
  ProgressStrip& progressStrip() const { return *m_progress; }
  FailureStrip& failureStrip() const { return *m_failures; }
  void closeEvent(QCloseEvent* event) override;

 private:
  QString m_placeKey;
  ProgressStrip* m_progress;
  FailureStrip* m_failures;
  QLabel* m_totals = nullptr;
  std::unique_ptr<HeldWindow> m_heldInput;
  bool m_isRunning = false;
  bool m_isFocusGiven = false;  ///< By the running command.
};

}  // namespace veldra
