#pragma once

#include <QLineEdit>
#include <QPushButton>

namespace veldra {

enum class PathKind { File, Folder };

/// Lets the user choose a file or a folder, from the current directory on, and writes it into the
/// field; nothing changes when the user gives up.
void browseInto(QLineEdit* field, PathKind kind);

/// A button that asks for a file or a folder and writes the choice into the field.
QPushButton* makeBrowseButton(int id, QLineEdit* field, QWidget* parent);

}  // namespace veldra
