#include "host/desktop/window/ArchiveChoice.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "host/cli/Connection.h"
#include "host/desktop/Text.h"

namespace veldra::host::desktop {

QWidget* withBrowse(QLineEdit& edit, const QString& title) {
  // Its label is that of the row, which is no field.
  edit.setAccessibleName(title);
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&edit, 1);
  auto* browse = new QPushButton(ArchiveChoice::tr("Browse…"));
  browse->setAccessibleName(title);
  browse->setAccessibleDescription(ArchiveChoice::tr("Lets you choose a folder"));
  browse->setAutoDefault(false);
  layout->addWidget(browse);
  row->setFocusProxy(&edit);
  QObject::connect(browse, &QPushButton::clicked, &edit, [&edit, title] {
    const QString folder = QFileDialog::getExistingDirectory(edit.window(), title, edit.text());
    if (!folder.isEmpty()) edit.setText(QDir::toNativeSeparators(folder));
  });
  return row;
}

ArchiveChoice::ArchiveChoice(const PropertyLayers& layers, QObject* parent)
    : QObject(parent), m_tool(new QComboBox), m_archive(new QLineEdit) {
  m_tool->setObjectName("Tool");
  m_archive->setObjectName("Archive");
  m_tool->setAccessibleDescription(tr("The tool that keeps the versions"));
  m_archive->setAccessibleDescription(tr("Where the tool keeps them: an address or a folder"));
  m_tool->addItem(tr("None yet"), QString());
  for (const PackDescription& pack : layers.packs()) {
    m_tool->addItem(shown(pack.title.empty() ? pack.name : pack.title), shown(pack.name));
  }
  m_archive->setPlaceholderText(tr("An address, or a folder that is made when it does not exist"));
  connect(m_tool, &QComboBox::currentIndexChanged, this, [this] {
    m_archive->setEnabled(!tool().empty());
    emit changed();
  });
  connect(m_archive, &QLineEdit::textChanged, this, &ArchiveChoice::changed);
  preset("Subversion", {});
}

void ArchiveChoice::addRows(QFormLayout& form) {
  form.addRow(tr("CM &tool:"), m_tool);
  form.addRow(tr("&Archive:"), withBrowse(*m_archive, tr("Folder of the archive")));
}

void ArchiveChoice::preset(const std::string& tool, const QString& archive) {
  m_tool->setCurrentIndex(std::max(0, m_tool->findData(shown(tool))));
  m_archive->setText(archive);
}

std::string ArchiveChoice::tool() const {
  return bytesOf(m_tool->currentData().toString());
}

QString ArchiveChoice::archive() const {
  const QString place = m_archive->text().trimmed();
  if (tool().empty() || place.isEmpty()) return {};
  return cli::isLocalPlace(bytesOf(place)) ? QDir(place).absolutePath() : place;
}

}  // namespace veldra::host::desktop
