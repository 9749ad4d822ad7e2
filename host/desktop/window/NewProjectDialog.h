#pragma once

#include <QDialog>

#include "host/desktop/session/Questions.h"
#include "host/model/PropertyLayers.h"

class QLineEdit;
class QPushButton;

namespace veldra::host::desktop {

class ArchiveChoice;

/// Makes a project from a folder, and says with which tool and archive it works.
class NewProjectDialog : public QDialog {
  Q_OBJECT

 public:
  NewProjectDialog(const PropertyLayers& layers, Questions& questions, QWidget* parent);

  /// The project file that was made.
  const QString& projectFile() const { return m_projectFile; }
  /// Empty when the project gets none now.
  QString archive() const;
  bool wantsConnection() const { return !archive().isEmpty(); }

 protected:
  void accept() override;

 private:
  void updateState();

  Questions& m_questions;
  QString m_projectFile;
  QLineEdit* m_folder;
  QLineEdit* m_name;
  ArchiveChoice* m_archive;
  QPushButton* m_ok = nullptr;
};

}  // namespace veldra::host::desktop
