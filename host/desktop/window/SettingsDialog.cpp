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
#include <filesystem>
#include <string_view>

#include "cm/core/CMArchive.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/widgets/Control.h"
#include "host/cli/InstalledProviders.h"
#include "host/desktop/Text.h"
#include "host/desktop/window/SettingsModel.h"
#include "host/platform/Registry.h"

namespace veldra::host::desktop {
namespace {

// No tool has a name that begins like this. The provider's name follows; nothing for whichever the
// user has.
constexpr char ProviderEntry[] = "\x01provider";

PropertyKey providersArchive() {
  return {IPN::CM, IPN::SCC, "ProjName"};
}

/// As the box of tools knows the provider that is in use.
QString presentProvider() {
  Registry registry;
  for (const cli::InstalledProvider& provider : cli::installedProviders(registry)) {
    if (provider.isDefault) return ProviderEntry + shown(provider.name);
  }
  return ProviderEntry;
}

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
  describeButtons(*buttons);
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
  addProviders();
  m_backEnd->setObjectName("BackEnd");
  m_backEnd->setAccessibleDescription(
      tr("What keeps the versions: a command-line tool, or a provider library"));
  m_archive = new QLineEdit;
  m_archive->setObjectName("Archive");
  m_archive->setAccessibleDescription(tr("Where the tool or the provider keeps the project"));
  form->addRow(tr("CM &tool:"), m_backEnd);
  form->addRow(tr("&Archive:"), m_archive);
  connect(m_backEnd, &QComboBox::activated, this, &SettingsDialog::takeTool);
  connect(m_archive, &QLineEdit::editingFinished, this, &SettingsDialog::takeArchive);
  const bool hasProject = m_session.project() != nullptr;
  m_backEnd->setEnabled(hasProject);
  m_archive->setEnabled(hasProject);
  return box;
}

/// The installed ones, and that of this program also as long as nobody has installed it.
void SettingsDialog::addProviders() {
  Registry registry;
  const std::string shipped = cli::shippedProvider(m_session.host().installationRoot());
  bool lacksShipped = std::filesystem::exists(shipped);
  const int before = m_backEnd->count();
  for (const cli::InstalledProvider& provider : cli::installedProviders(registry)) {
    m_backEnd->addItem(tr("Provider: %1").arg(shown(provider.name)),
                       ProviderEntry + shown(provider.name));
    lacksShipped = lacksShipped && provider.library != shipped;
  }
  if (lacksShipped) {
    m_backEnd->addItem(tr("Provider of this program, for Subversion"),
                       ProviderEntry + shown(shipped));
  }
  if (m_backEnd->count() == before) m_backEnd->addItem(tr("A provider library"), ProviderEntry);
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
  m_filter->setAccessibleDescription(tr("Shows only properties that contain this text"));
  m_filter->setClearButtonEnabled(true);
  m_everyTool = new QCheckBox(tr("Of &every tool"));
  m_onlyChanged = new QCheckBox(tr("Only what &differs from the tool pack"));
  m_everyTool->setAccessibleDescription(
      tr("Shows the properties of tools that are not in use, too"));
  m_onlyChanged->setAccessibleDescription(
      tr("Shows only what the site, the user, the project or the unit has set"));
  filters->addWidget(m_filter, 1);
  filters->addWidget(m_everyTool);
  filters->addWidget(m_onlyChanged);
  layout->addLayout(filters);
  m_view = new QTableView;
  m_view->setAccessibleName(tr("Properties"));
  m_view->setAccessibleDescription(
      tr("Every property with its value and where that comes from; the selected one is edited "
         "below"));
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
  m_value->setAccessibleDescription(tr("The value of the selected property"));
  m_value->setTabChangesFocus(true);
  m_value->setFixedHeight(fontMetrics().lineSpacing() * 3 + 12);
  row->addWidget(m_value, 1);
  auto* column = new QVBoxLayout;
  m_target = new QComboBox;
  m_target->setAccessibleName(tr("Where to store the value"));
  m_target->setAccessibleDescription(tr("For whom the value is to count"));
  m_store = new QPushButton(tr("&Store"));
  m_store->setAutoDefault(false);
  m_store->setAccessibleDescription(tr("Stores the value where the box above says"));
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
  const QString tool = isProvider ? presentProvider() : shown(m_table.tool());
  m_backEnd->setCurrentIndex(std::max(0, m_backEnd->findData(tool)));
  const QSignalBlocker quiet(m_archive);
  m_archive->setText(shown(archive()));
}

void SettingsDialog::showRow() {
  const SettingRow* row = m_model->row(m_view->currentIndex());
  m_value->setEnabled(row != nullptr);
  m_store->setEnabled(row != nullptr);
  m_reset->setEnabled(row && SettingsTable::isResettable(row->origin));
  m_value->setPlainText(row ? shown(row->value) : QString());
  m_source->setText(!row ? tr("Select a property to see and change its value.")
                    : row->source.empty()
                        ? originText(row->origin)
                        : originText(row->origin) + ": " + shownName(row->source));
}

bool SettingsDialog::set(const PropertyKey& key, const std::string& value, Origin target) {
  const std::optional<std::string> failure = m_table.set(key, value, target, m_unit);
  if (failure) m_session.questions().ask({.text = shown(*failure), .icon = QMessageBox::Warning});
  fill();
  return !failure;
}

void SettingsDialog::takeTool() {
  const std::string chosen = bytesOf(m_backEnd->currentData().toString());
  if (chosen.starts_with(ProviderEntry)) {
    return takeProvider(chosen.substr(std::string_view(ProviderEntry).size()));
  }
  if (!set(cli::useOfProvider(), "No", Origin::Project)) return;
  set({IPN::CM, IPN::General, IPN::CMTool}, chosen, Origin::Project);
}

void SettingsDialog::takeProvider(const std::string& chosen) {
  Registry registry;
  const std::string& place = registry.places().user;
  const std::string former = CMProperty::getIsLoaded() ? CMProperty::getSCCToolName() : "";
  std::string name = chosen;
  try {
    if (std::filesystem::path(chosen).is_absolute()) {
      name = cli::providerNameOf(chosen);
      cli::installProvider(place, name, chosen);
      m_backEnd->setItemText(m_backEnd->currentIndex(), tr("Provider: %1").arg(shown(name)));
      m_backEnd->setItemData(m_backEnd->currentIndex(), ProviderEntry + shown(name));
    }
    for (const cli::InstalledProvider& provider : cli::installedProviders(registry)) {
      if (provider.name == name) cli::makeDefaultProvider(place, provider);
    }
  } catch (const std::exception& failure) {
    m_session.questions().ask({.text = shown(failure.what()), .icon = QMessageBox::Warning});
    return fill();
  }
  if (!set(cli::useOfProvider(), "Yes", Origin::Project)) return;
  m_session.project()->startShowingCMStatus();
  if (former.empty() || former == name) return;
  m_session.questions().ask(
      {.text = tr("%1 stays in use until the program is started anew.").arg(shown(former))});
}

/// Where the project is kept, for a tool or for a provider.
std::string SettingsDialog::archive() const {
  if (CMProperty::useSccCompliantTool() == 0) return CMArchive::getMainArchive();
  const Property* const project = m_session.host().properties().find(providersArchive());
  return project ? project->value() : std::string();
}

void SettingsDialog::takeArchive() {
  const std::string place = bytesOf(m_archive->text().trimmed());
  if (place == archive()) return;
  const bool isProvider = CMProperty::useSccCompliantTool() != 0;
  const std::string tool = m_table.tool();
  if (isProvider) {
    set(providersArchive(), place, Origin::Project);
  } else if (!tool.empty()) {
    set({IPN::CM, tool, IPN::CMArchive}, place, Origin::Project);
  }
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
