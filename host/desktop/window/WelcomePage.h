#pragma once

#include <QWidget>
#include <string>
#include <vector>

class QVBoxLayout;

namespace veldra::host::desktop {

/// What the window shows when no project is open: what can be done first.
class WelcomePage : public QWidget {
  Q_OBJECT

 public:
  explicit WelcomePage(QWidget* parent = nullptr);
  void showRecent(const std::vector<std::string>& projects);

 signals:
  void openWanted();
  void newWanted();
  void recentWanted(const QString& project);

 private:
  QWidget* m_recent;
  QVBoxLayout* m_recentLayout;
};

}  // namespace veldra::host::desktop
