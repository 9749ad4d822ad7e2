#include "host/desktop/window/NewProjectDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "cm/host/IPN.h"
#include "cm/ui/widgets/Control.h"
#include "host/desktop/Text.h"
#include "host/desktop/window/ArchiveChoice.h"
#include "host/model/NewProject.h"

namespace veldra::host::desktop {

NewProjectDialog::NewProjectDialog(const PropertyLayers& layers, Questions& questions,
                                   QWidget* parent)
    : QDialog(parent),
      m_questions(questions),
      m_folder(new QLineEdit),
      m_name(new QLineEdit),
      m_archive(new ArchiveChoice(layers, this)) {
  setWindowTitle(tr("New Project"));
  setMinimumWidth(560);
  m_name->setPlaceholderText(tr("As the folder"));
  m_name->setAccessibleDescription(tr("What the project is called; empty for the folder's name"));
  m_folder->setAccessibleDescription(tr("The folder that becomes a project"));
  auto* form = new QFormLayout(this);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->addRow(tr("&Folder:"), withBrowse(*m_folder, tr("Folder of the project")));
  form->addRow(tr("&Name:"), m_name);
  m_archive->addRows(*form);
  auto* hint =
      new QLabel(tr("Model files that lie in the folder become units. None of them is changed."));
  hint->setWordWrap(true);
  hint->setForegroundRole(QPalette::PlaceholderText);
  form->addRow(QString(), hint);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  m_ok = buttons->button(QDialogButtonBox::Ok);
  m_ok->setText(tr("&Make Project"));
  describeButtons(*buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &NewProjectDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(m_folder, &QLineEdit::textChanged, this, &NewProjectDialog::updateState);
  form->addRow(buttons);
  updateState();
}

void NewProjectDialog::updateState() {
  m_ok->setEnabled(!m_folder->text().trimmed().isEmpty());
}

QString NewProjectDialog::archive() const {
  return m_archive->archive();
}

void NewProjectDialog::accept() {
  NewProject request;
  request.directory = bytesOf(m_folder->text().trimmed());
  request.name = bytesOf(m_name->text().trimmed());
  // Files without a dot are units like any other, so listings have to show them.
  request.properties.push_back({{IPN::CM, IPN::General, "IgnoreArchiveItemsWithoutDot"}, "No"});
  const std::string tool = m_archive->tool();
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
