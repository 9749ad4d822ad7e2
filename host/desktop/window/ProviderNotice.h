#pragma once

#include <QDialog>

class QLabel;

namespace veldra::host::desktop {

class WorkWatch;

/// Comes up when a call of the source control provider takes longer than people wait without
/// wondering: which call, for how long, and the choice to go on waiting or to leave the program.
class ProviderNotice : public QDialog {
  Q_OBJECT

 public:
  ProviderNotice(WorkWatch& work, QWidget* parent);

 signals:
  /// The user wants to leave the program with everything saved.
  void leaveWanted();

 private:
  void tell(const QString& entryPoint, int seconds);
  void goOnWaiting();

  QLabel* m_what;
  int m_quietUntil = 0;  ///< In seconds of the call; before that the user does not want to hear.
  int m_seconds = 0;
};

}  // namespace veldra::host::desktop
