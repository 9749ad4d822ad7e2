#pragma once

#include <QObject>
#include <QString>
#include <string>

#include "host/model/PropertyLayers.h"

class QComboBox;
class QFormLayout;
class QLineEdit;

namespace veldra::host::desktop {

/// The two fields in which a CM tool and its archive are chosen.
class ArchiveChoice : public QObject {
  Q_OBJECT

 public:
  ArchiveChoice(const PropertyLayers& layers, QObject* parent);

  void addRows(QFormLayout& form);
  void preset(const std::string& tool, const QString& archive);
  /// The chosen tool; empty for none.
  std::string tool() const;
  /// An address, or the absolute name of a folder; empty for none.
  QString archive() const;

 signals:
  void changed();

 private:
  QComboBox* m_tool;
  QLineEdit* m_archive;
};

/// The field with a button that lets the user look for a folder.
QWidget* withBrowse(QLineEdit& edit, const QString& title);

}  // namespace veldra::host::desktop
