#pragma once

#include <QDialog>

#include "host/desktop/commands/CommandRun.h"

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;

namespace veldra::host::desktop {

/// Asks for what a command needs to know: the comment, the label, whether what lies below goes
/// along.
class CommandDialog : public QDialog {
  Q_OBJECT

 public:
  CommandDialog(const WindowCommand& row, const QStringList& units, bool hasDescendants,
                const QString& comment, QWidget* parent);
  CommandOptions choice() const;

 private:
  QPlainTextEdit* m_comment;
  QLineEdit* m_label;
  QCheckBox* m_descendants;
};

}  // namespace veldra::host::desktop
