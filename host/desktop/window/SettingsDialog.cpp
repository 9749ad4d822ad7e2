#include "host/desktop/window/SettingsDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

#include "cm/core/CMArchive.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "host/desktop/Text.h"
#include "host/desktop/window/SettingsModel.h"

namespace veldra::host::desktop {
namespace {

constexpr char UseProvider[] = "UseSCCtool";
// No tool has such a name.
constexpr char ProviderEntry[] = "\x01provider";

}  // namespace

SettingsDialog::SettingsDialog(DesktopSession& session, UnitCore* unit, QWidget* parent)
    : QDialog(parent),
      m_session(session),
      m_unit(unit),
      m_table(session.host().properties(), session.project()),
      m_model(new SettingsModel(this)) {
  setWindowTitle(tr("CM Settings"));
  resize(860, 620);
  build();
  fill();
}

void SettingsDialog::build() {
  auto* layout = new QVBoxLayout(this);
  layout->setSpacing(10);
  layout->addWidget(makeToolBox());
  layout->addWidget(makeTable(), 1);
  layout->addWidget(makeValueBox());
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &SettingsDialog::reject);
  layout->addWidget(buttons);
}

QWidget* SettingsDialog::makeToolBox() {
  auto* box = new QWidget;
  auto* form = new QFormLayout(box);
  form->setContentsMargins(0, 0, 0, 0);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  m_backEnd = new QComboBox;
  m_backEnd->addItem(tr("None"), "None");
  for (const PackDescription& pack : m_session.host().properties().packs()) {
    const QString title = pack.title.empty() ? shown(pack.name) : shown(pack.title);
    m_backEnd->addItem(title + " — " + shown(pack.description), shown(pack.name));
  }
  m_backEnd->addItem(tr("A provider library"), ProviderEntry);
  m_archive = new QLineEdit;
  form->addRow(tr("CM &tool:"), m_backEnd);
  form->addRow(tr("&Archive:"), m_archive);
  connect(m_backEnd, &QComboBox::activated, this, &SettingsDialog::takeTool);
  connect(m_archive, &QLineEdit::editingFinished, this, &SettingsDialog::takeArchive);
  const bool hasProject = m_session.project() != nullptr;
  m_backEnd->setEnabled(hasProject);
  m_archive->setEnabled(hasProject);
  return box;
}

QWidget* SettingsDialog::makeTable() {
  auto* box = new QWidget;
  auto* layout = new QVBoxLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* filters = new QHBoxLayout;
  m_filter = new QLineEdit;
  m_filter->setObjectName("Filter");
  m_filter->setPlaceholderText(tr("Filter"));
  m_filter->setAccessibleName(tr("Filter"));
  m_filter->setClearButtonEnabled(true);
  m_everyTool = new QCheckBox(tr("Of &every tool"));
  m_onlyChanged = new QCheckBox(tr("Only what &differs from the tool pack"));
  filters->addWidget(m_filter, 1);
  filters->addWidget(m_everyTool);
  filters->addWidget(m_onlyChanged);
  layout->addLayout(filters);
  m_view = new QTableView;
  m_view->setAccessibleName(tr("Properties"));
  m_view->setModel(m_model);
  m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_view->setSelectionMode(QAbstractItemView::SingleSelection);
  m_view->setAlternatingRowColors(true);
  m_view->setShowGrid(false);
  m_view->setTabKeyNavigation(false);
  m_view->setWordWrap(false);
  m_view->verticalHeader()->hide();
  m_view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  m_view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  m_view->horizontalHeader()->setHighlightSections(false);
  m_view->horizontalHeader()->setSectionResizeMode(SettingsModel::Value, QHeaderView::Stretch);
  m_view->setColumnWidth(SettingsModel::Name, 230);
  layout->addWidget(m_view, 1);
  connect(m_filter, &QLineEdit::textChanged, this, &SettingsDialog::fill);
  connect(m_everyTool, &QCheckBox::toggled, this, &SettingsDialog::fill);
  connect(m_onlyChanged, &QCheckBox::toggled, this, &SettingsDialog::fill);
  connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &SettingsDialog::showRow);
  return box;
}

QWidget* SettingsDialog::makeValueBox() {
  auto* box = new QWidget;
  auto* layout = new QVBoxLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  m_source = new QLabel;
  m_source->setTextFormat(Qt::PlainText);
  m_source->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_source->setForegroundRole(QPalette::PlaceholderText);
  layout->addWidget(m_source);
  auto* row = new QHBoxLayout;
  m_value = new QPlainTextEdit;
  m_value->setAccessibleName(tr("Value"));
  m_value->setTabChangesFocus(true);
  m_value->setFixedHeight(fontMetrics().lineSpacing() * 3 + 12);
  row->addWidget(m_value, 1);
  auto* column = new QVBoxLayout;
  m_target = new QComboBox;
  m_target->setAccessibleName(tr("Where to store the value"));
  m_store = new QPushButton(tr("&Store"));
  m_store->setAutoDefault(false);
  connect(m_store, &QPushButton::clicked, this, &SettingsDialog::store);
  m_reset = new QPushButton(tr("&Reset to Inherited"));
  m_reset->setObjectName("Reset");
  m_reset->setAutoDefault(false);
  m_reset->setToolTip(tr("Takes the value away where it is stored, so that the inherited counts"));
  connect(m_reset, &QPushButton::clicked, this, &SettingsDialog::reset);
  for (const Origin origin : m_table.targets(m_unit)) {
    m_target->addItem(origin == Origin::Project ? tr("For the project")
                      : origin == Origin::Unit  ? tr("For this unit")
                                                : tr("For me, everywhere"),
                      static_cast<int>(origin));
  }
  column->addWidget(m_target);
  column->addWidget(m_store);
  column->addWidget(m_reset);
  row->addLayout(column);
  layout->addLayout(row);
  return box;
}

void SettingsDialog::fill() {
  const SettingRow* current = m_model->row(m_view->currentIndex());
  const PropertyKey key = current ? current->key : PropertyKey{};
  m_model->setRows(m_table.rows({.text = bytesOf(m_filter->text()),
                                 .everyTool = m_everyTool->isChecked(),
                                 .onlyChanged = m_onlyChanged->isChecked(),
                                 .unit = m_unit}));
  m_view->setCurrentIndex(m_model->indexOf(key));
  showRow();
  const bool isProvider = CMProperty::useSccCompliantTool() != 0;
  const QString tool = isProvider ? QString(ProviderEntry) : shown(m_table.tool());
  m_backEnd->setCurrentIndex(std::max(0, m_backEnd->findData(tool)));
  const QSignalBlocker quiet(m_archive);
  m_archive->setText(shown(CMArchive::getMainArchive()));
}

void SettingsDialog::showRow() {
  const SettingRow* row = m_model->row(m_view->currentIndex());
  m_value->setEnabled(row != nullptr);
  m_store->setEnabled(row != nullptr);
  m_reset->setEnabled(row && SettingsTable::isResettable(row->origin));
  m_value->setPlainText(row ? shown(row->value) : QString());
  m_source->setText(!row                  ? tr("Select a property to see and change its value.")
                    : row->source.empty() ? originText(row->origin)
                                          : originText(row->origin) + ": " + shown(row->source));
}

bool SettingsDialog::set(const PropertyKey& key, const std::string& value, Origin target) {
  const std::optional<std::string> failure = m_table.set(key, value, target, m_unit);
  if (failure) m_session.questions().ask({.text = shown(*failure), .icon = QMessageBox::Warning});
  fill();
  return !failure;
}

void SettingsDialog::takeTool() {
  const std::string chosen = bytesOf(m_backEnd->currentData().toString());
  const bool isProvider = chosen == ProviderEntry;
  if (!set({IPN::CM, IPN::General, UseProvider}, isProvider ? "Yes" : "No", Origin::Project))
    return;
  if (!isProvider) set({IPN::CM, IPN::General, IPN::CMTool}, chosen, Origin::Project);
}

void SettingsDialog::takeArchive() {
  const std::string place = bytesOf(m_archive->text().trimmed());
  const std::string tool = m_table.tool();
  if (place == CMArchive::getMainArchive() || tool.empty()) return;
  set({IPN::CM, tool, IPN::CMArchive}, place, Origin::Project);
}

void SettingsDialog::store() {
  const SettingRow* row = m_model->row(m_view->currentIndex());
  if (!row) return;
  const PropertyKey key = row->key;
  set(key, bytesOf(m_value->toPlainText()), static_cast<Origin>(m_target->currentData().toInt()));
}

void SettingsDialog::reset() {
  const SettingRow* row = m_model->row(m_view->currentIndex());
  if (!row) return;
  const PropertyKey key = row->key;
  const auto failure = m_table.reset(key, row->origin, m_unit);
  if (failure) m_session.questions().ask({.text = shown(*failure), .icon = QMessageBox::Warning});
  fill();
}

void SettingsDialog::reject() {
  takeArchive();
  QDialog::reject();
}

}  // namespace veldra::host::desktop
