#pragma once

#include <QWidget>
#include <vector>

#include "cm/ui/widgets/CommandButton.h"

namespace veldra {

/// The two rows of buttons at the top of the main dialog. A hidden button takes no room.
class ButtonPanel : public QWidget {
  Q_OBJECT

 public:
  explicit ButtonPanel(QWidget* parent = nullptr);

  CommandButton* button(DialogCommand command) const;
  const std::vector<CommandButton*>& buttons() const { return m_buttons; }
  /// Shows, hides and places the buttons as the project's present settings demand.
  void refresh();
  /// The buttons that can be pressed, as long as no command runs.
  void setCommandsEnabled(bool enabled);

 Q_SIGNALS:
  void pressed(veldra::DialogCommand command);

 private:
  int placeLine(int line, const ButtonPlaces& places);

  std::vector<CommandButton*> m_buttons;
  QWidget* m_firstPlace;
  QWidget* m_secondPlace;
};

}  // namespace veldra
