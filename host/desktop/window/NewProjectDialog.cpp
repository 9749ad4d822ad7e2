#include "host/desktop/window/NewProjectDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "cm/host/IPN.h"
#include "host/desktop/Text.h"
#include "host/model/NewProject.h"

namespace veldra::host::desktop {

NewProjectDialog::NewProjectDialog(const PropertyLayers& layers, Questions& questions,
                                   QWidget* parent)
    : QDialog(parent),
      m_questions(questions),
      m_folder(new QLineEdit),
      m_name(new QLineEdit),
      m_tool(new QComboBox),
      m_archive(new QLineEdit) {
  setWindowTitle(tr("New Project"));
  setMinimumWidth(560);
  m_tool->addItem(tr("None yet"), QString());
  for (const PackDescription& pack : layers.packs()) {
    m_tool->addItem(shown(pack.title.empty() ? pack.name : pack.title), shown(pack.name));
  }
  m_tool->setCurrentIndex(std::max(0, m_tool->findData("Subversion")));
  m_name->setPlaceholderText(tr("As the folder"));
  m_archive->setPlaceholderText(tr("An address, or a folder that is made when it does not exist"));
  auto* form = new QFormLayout(this);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->addRow(tr("&Folder:"), withBrowse(*m_folder, tr("Folder of the project")));
  form->addRow(tr("&Name:"), m_name);
  form->addRow(tr("CM &tool:"), m_tool);
  form->addRow(tr("&Archive:"), withBrowse(*m_archive, tr("Folder of the archive")));
  auto* hint =
      new QLabel(tr("Model files that lie in the folder become units. None of them is changed."));
  hint->setWordWrap(true);
  hint->setForegroundRole(QPalette::PlaceholderText);
  form->addRow(QString(), hint);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  m_ok = buttons->button(QDialogButtonBox::Ok);
  m_ok->setText(tr("&Make Project"));
  connect(buttons, &QDialogButtonBox::accepted, this, &NewProjectDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(m_folder, &QLineEdit::textChanged, this, &NewProjectDialog::updateState);
  connect(m_tool, &QComboBox::currentIndexChanged, this, &NewProjectDialog::updateState);
  form->addRow(buttons);
  updateState();
}

QWidget* NewProjectDialog::withBrowse(QLineEdit& edit, const QString& title) {
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&edit, 1);
  auto* browse = new QPushButton(tr("Browse…"));
  browse->setAccessibleName(title);
  layout->addWidget(browse);
  row->setFocusProxy(&edit);
  connect(browse, &QPushButton::clicked, this, [this, &edit, title] {
    const QString folder = QFileDialog::getExistingDirectory(this, title, edit.text());
    if (!folder.isEmpty()) edit.setText(QDir::toNativeSeparators(folder));
  });
  return row;
}

void NewProjectDialog::updateState() {
  m_ok->setEnabled(!m_folder->text().trimmed().isEmpty());
  m_archive->setEnabled(!m_tool->currentData().toString().isEmpty());
}

QString NewProjectDialog::archive() const {
  return m_archive->isEnabled() ? m_archive->text().trimmed() : QString();
}

void NewProjectDialog::accept() {
  NewProject request;
  request.directory = bytesOf(m_folder->text().trimmed());
  request.name = bytesOf(m_name->text().trimmed());
  // Files without a dot are units like any other, so listings have to show them.
  request.properties.push_back({{IPN::CM, IPN::General, "IgnoreArchiveItemsWithoutDot"}, "No"});
  const std::string tool = bytesOf(m_tool->currentData().toString());
  if (!tool.empty()) request.properties.push_back({{IPN::CM, IPN::General, IPN::CMTool}, tool});
  if (!archive().isEmpty()) {
    request.properties.push_back({{IPN::CM, tool, IPN::CMArchive}, bytesOf(archive())});
  }
  std::string error;
  const std::optional<std::string> file = createProject(request, error);
  if (!file) {
    m_questions.ask({.text = shown(error), .icon = QMessageBox::Warning});
    return;
  }
  m_projectFile = shown(*file);
  QDialog::accept();
}

}  // namespace veldra::host::desktop
