#pragma once

#include <QDialog>

#include "host/model/PropertyLayers.h"

namespace veldra::host::desktop {

class ArchiveChoice;

/// Asks with which tool and archive the open project works.
class ConnectDialog : public QDialog {
  Q_OBJECT

 public:
  ConnectDialog(const PropertyLayers& layers, const std::string& tool, const QString& archive,
                QWidget* parent);
  const ArchiveChoice& choice() const { return *m_choice; }

 private:
  ArchiveChoice* m_choice;
};

}  // namespace veldra::host::desktop
