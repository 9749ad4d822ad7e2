#pragma once

#include <QDialog>

#include "cm/ui/Export.h"

namespace veldra {

/// Asks whether units are checked out or only fetched. Each of the two buttons closes it with OK.
class VELDRA_CM_UI_EXPORT CCMFetchSelection : public QDialog {
  Q_OBJECT

 public:
  enum class Choice { None, CheckOut, Fetch };

  explicit CCMFetchSelection(QWidget* parent = nullptr);
  Choice choice() const { return m_choice; }

 private:
  void addChoice(int id, const QString& caption, Choice choice);

  Choice m_choice = Choice::None;
};

}  // namespace veldra
