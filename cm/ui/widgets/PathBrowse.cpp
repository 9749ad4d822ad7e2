#include "cm/ui/widgets/PathBrowse.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QMenu>

#include "cm/ui/widgets/Control.h"

namespace veldra {

namespace {

QString words(const char* text) {
  return QCoreApplication::translate("veldra::PathBrowse", text);
}

}  // namespace

void browseInto(QLineEdit* field, PathKind kind) {
  QWidget* const window = field->window();
  const QString start = QDir::currentPath();
  const QString chosen =
      kind == PathKind::File
          ? QFileDialog::getOpenFileName(
                window, words(QT_TRANSLATE_NOOP("veldra::PathBrowse", "Choose a File")), start)
          : QFileDialog::getExistingDirectory(
                window, words(QT_TRANSLATE_NOOP("veldra::PathBrowse", "Choose a Folder")), start);
  if (!chosen.isEmpty()) field->setText(QDir::toNativeSeparators(chosen));
}

QPushButton* makeBrowseButton(int id, QLineEdit* field, QWidget* parent) {
  const QString caption = words(QT_TRANSLATE_NOOP("veldra::PathBrowse", "&Browse"));
  auto* const button = control(new QPushButton(caption, parent), id, caption);
  auto* const menu = new QMenu(button);
  menu->addAction(words(QT_TRANSLATE_NOOP("veldra::PathBrowse", "&Folder...")), field,
                  [field] { browseInto(field, PathKind::Folder); });
  menu->addAction(words(QT_TRANSLATE_NOOP("veldra::PathBrowse", "F&ile...")), field,
                  [field] { browseInto(field, PathKind::File); });
  button->setMenu(menu);
  button->setAutoDefault(false);
  return button;
}

}  // namespace veldra
