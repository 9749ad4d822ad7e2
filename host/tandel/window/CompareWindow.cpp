#include "host/tandel/window/CompareWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>
#include <filesystem>

#include "host/compare/ComparisonReport.h"
#include "host/desktop/Text.h"
#include "host/platform/AtomicFile.h"
#include "host/resources/MessageNumbers.h"
#include "host/tandel/window/DifferenceTable.h"
#include "host/tandel/window/Pane.h"

namespace veldra::host::tandel {

using compare::FilePair;
using compare::Side;
using desktop::shown;

namespace {

/// The window's actions, in the order of their texts.
enum Action : std::size_t { Previous, Next, TakeFirst, TakeSecond, Save, Close };

QLabel* nameLabel(QWidget* parent) {
  auto* const label = new QLabel(parent);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setMinimumWidth(60);
  label->setTextFormat(Qt::PlainText);
  return label;
}

}  // namespace

CompareWindow::CompareWindow(ReferenceHost& host, CompareSession& session,
                             const TandelOptions& options, desktop::Questions& questions)
    : m_host(host), m_session(session), m_options(options), m_questions(questions) {
  if (options.mergesBack) {
    m_target = std::make_unique<MergeTarget>(host, options.projectIdentifier);
  }
  build();
  addActions();
  resize(1120, 760);
  showFile(session.nextDifferent(0).value_or(0));
  m_list->setFocus();
}

CompareWindow::~CompareWindow() = default;

QString CompareWindow::text(int number, const std::vector<std::string>& values) const {
  return shown(m_host.catalogue().format(number, values));
}

void CompareWindow::build() {
  auto* const parts = new QSplitter(Qt::Vertical, this);
  parts->addWidget(buildPanes());
  parts->addWidget(buildList());
  parts->setStretchFactor(0, 3);
  parts->setStretchFactor(1, 1);
  parts->setChildrenCollapsible(false);
  auto* const whole = new QSplitter(Qt::Horizontal, this);
  m_files = new QListWidget(whole);
  m_files->setAccessibleName(text(MessageNumber::FilesList));
  const compare::Texts words = [this](int number, const std::vector<std::string>& values) {
    return m_host.catalogue().format(number, values);
  };
  for (const FilePair& pair : m_session.files()) {
    m_files->addItem(shown(pair.name) + QStringLiteral("  –  ") +
                     shown(wordFor(pair.state, words)));
  }
  m_files->setVisible(m_session.files().size() > 1);
  whole->addWidget(parts);
  whole->setStretchFactor(1, 1);
  setCentralWidget(whole);
  connect(m_files, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0 && static_cast<std::size_t>(row) != m_file) {
      showFile(static_cast<std::size_t>(row));
    }
  });
}

QWidget* CompareWindow::buildPanes() {
  auto* const panes = new QSplitter(Qt::Horizontal, this);
  const auto addSide = [&](Pane::Shows shows, int number, QLabel*& name, Pane*& pane) {
    auto* const side = new QWidget(panes);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(6, 6, 6, 0);
    name = nameLabel(side);
    pane = new Pane(shows, text(number), side);
    layout->addWidget(name);
    layout->addWidget(pane, 1);
    panes->addWidget(side);
    connect(pane, &Pane::differencePicked, this, [this](std::size_t difference) {
      m_list->setCurrentIndex(m_table->index(static_cast<int>(difference), 0));
    });
  };
  addSide(Pane::Shows::First, MessageNumber::SideNames, m_firstName, m_first);
  addSide(Pane::Shows::Second, MessageNumber::SideNames + 1, m_secondName, m_second);
  panes->setChildrenCollapsible(false);
  // In proportion to each other, so that neither side is the wider one.
  panes->setSizes({1000, 1000});
  joinScrollBars();
  return panes;
}

void CompareWindow::joinScrollBars() {
  const auto follow = [this](QScrollBar* from, QScrollBar* to) {
    connect(from, &QScrollBar::valueChanged, to, &QScrollBar::setValue);
  };
  follow(m_first->verticalScrollBar(), m_second->verticalScrollBar());
  follow(m_second->verticalScrollBar(), m_first->verticalScrollBar());
}

QWidget* CompareWindow::buildList() {
  m_table = new DifferenceTable(
      m_session,
      [this](int number, const std::vector<std::string>& values) {
        return m_host.catalogue().format(number, values);
      },
      this);
  m_list = new QTreeView(this);
  m_list->setModel(m_table);
  m_list->setRootIsDecorated(false);
  m_list->setUniformRowHeights(true);
  m_list->setAlternatingRowColors(true);
  m_list->setAllColumnsShowFocus(true);
  m_list->setAccessibleName(text(MessageNumber::DifferencesList));
  connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &CompareWindow::showCurrent);
  // What is chosen can be turned round where it stands.
  connect(m_list, &QTreeView::activated, this, [this](const QModelIndex& index) {
    const auto row = static_cast<std::size_t>(index.row());
    take(m_session.choice(m_file, row) == Side::First ? Side::Second : Side::First);
  });
  return m_list;
}

void CompareWindow::addActions() {
  struct Row {
    QKeySequence key;
    std::function<void()> run;
  };
  const std::vector<Row> rows{
      {QKeySequence(Qt::ALT | Qt::Key_Up), [this] { step(-1); }},
      {QKeySequence(Qt::ALT | Qt::Key_Down), [this] { step(1); }},
      {QKeySequence(Qt::ALT | Qt::Key_Left), [this] { take(Side::First); }},
      {QKeySequence(Qt::ALT | Qt::Key_Right), [this] { take(Side::Second); }},
      {QKeySequence::Save, [this] { save(); }},
      {QKeySequence::Close, [this] { close(); }}};
  QToolBar* const bar = addToolBar(text(MessageNumber::DifferencesList));
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const QString caption = text(MessageNumber::TandelActions + static_cast<int>(i));
    QAction* const action = bar->addAction(caption, this, rows[i].run);
    action->setShortcut(rows[i].key);
    QString plain = caption;
    plain.remove(QLatin1Char('&'));
    action->setToolTip(plain + QStringLiteral(" (") +
                       rows[i].key.toString(QKeySequence::NativeText) + QLatin1Char(')'));
    m_actions.push_back(action);
  }
}

void CompareWindow::showFile(std::size_t file) {
  m_file = file;
  const FilePair& pair = m_session.files()[file];
  std::string problem = pair.error;
  const compare::FileComparison* const comparison = m_session.comparison(file, problem);
  m_rows = comparison != nullptr ? paneRows(*comparison) : std::vector<PaneRow>();
  m_first->setRows(m_rows);
  m_second->setRows(m_rows);
  m_table->show(file, comparison);
  const auto nameOf = [this](const std::string& path, bool isControlled) {
    return isControlled ? text(MessageNumber::ControlledSide, {path}) : shown(path);
  };
  m_firstName->setText(nameOf(pair.first, m_options.isFirstControlled));
  m_secondName->setText(nameOf(pair.second, m_options.isSecondControlled));
  const auto baseNameOf = [](const std::string& path) {
    return std::filesystem::path(path).filename().string();
  };
  setWindowTitle(
      text(MessageNumber::TandelTitle, {baseNameOf(pair.first), baseNameOf(pair.second)}) +
      QStringLiteral("[*]"));
  m_files->setCurrentRow(static_cast<int>(file));
  for (int column = 0; column < DifferenceTable::Detail; ++column) {
    m_list->resizeColumnToContents(column);
  }
  // Either side may be chosen later, and a choice is shown in bold.
  QFont bold = m_list->font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  const int wanted = std::max(metrics.horizontalAdvance(text(MessageNumber::TakesSide)),
                              metrics.horizontalAdvance(text(MessageNumber::TakesSide + 1)));
  m_list->setColumnWidth(DifferenceTable::Take,
                         std::max(m_list->columnWidth(DifferenceTable::Take), wanted + 20));
  m_list->setCurrentIndex(m_table->index(0, 0));
  updateState();
  if (comparison == nullptr) tell(problem);
}

std::size_t CompareWindow::currentDifference() const {
  const QModelIndex index = m_list->currentIndex();
  return index.isValid() ? static_cast<std::size_t>(index.row()) : PaneRow::None;
}

void CompareWindow::showCurrent() {
  m_first->setCurrent(currentDifference());
  m_second->setCurrent(currentDifference());
  updateState();
}

void CompareWindow::step(int rows) {
  const int row = m_list->currentIndex().row() + rows;
  if (row >= 0 && row < m_table->rowCount()) {
    m_list->setCurrentIndex(m_table->index(row, 0));
    return;
  }
  // Behind the last difference of a file comes the next file.
  const std::size_t count = m_session.files().size();
  if (count < 2) return;
  for (std::size_t step = 1; step <= count; ++step) {
    const std::size_t file = rows > 0 ? (m_file + step) % count : (m_file + count - step) % count;
    if (m_session.files()[file].state == FilePair::State::Same) continue;
    showFile(file);
    if (rows < 0) m_list->setCurrentIndex(m_table->index(m_table->rowCount() - 1, 0));
    return;
  }
}

void CompareWindow::take(Side side) {
  const std::size_t difference = currentDifference();
  if (difference == PaneRow::None || !targetOf(m_file)) return;
  m_session.choose(m_file, difference, side);
  m_table->choicesChanged();
  updateState();
}

void CompareWindow::updateState() {
  const int count = m_table->rowCount();
  int taken = 0;
  for (int row = 0; row < count; ++row) {
    if (m_session.choice(m_file, static_cast<std::size_t>(row)) == Side::Second) ++taken;
  }
  const Result<std::string> target = targetOf(m_file);
  const bool canTake = target && currentDifference() != PaneRow::None;
  const QString totals =
      text(MessageNumber::TandelTotals, {std::to_string(count), std::to_string(taken)});
  statusBar()->showMessage(target ? totals
                                  : totals + QStringLiteral("  –  ") + shown(target.error()));
  setWindowModified(m_session.isAnyModified());
  if (m_actions.empty()) return;
  m_actions[TakeFirst]->setEnabled(canTake);
  m_actions[TakeSecond]->setEnabled(canTake);
  m_actions[Save]->setEnabled(m_session.isAnyModified());
}

Result<std::string> CompareWindow::targetOf(std::size_t file) {
  const FilePair& pair = m_session.files()[file];
  if (m_target != nullptr) return m_target->fileOf(pair.first);
  // Versions out of the archive are copies that nobody would look at again.
  if (m_options.fromVeldra || pair.state == FilePair::State::OnlySecond) {
    return Result<std::string>::failure(m_host.catalogue().text(MessageNumber::NotMergedBack));
  }
  return pair.first;
}

bool CompareWindow::saveFile(std::size_t file) {
  const Result<std::string> target = targetOf(file);
  if (!target) {
    tell(target.error());
    return false;
  }
  if (m_target != nullptr && !m_target->isAsExpected(*target, m_session.files()[file].first)) {
    const auto answer = m_questions.ask({.text = text(MessageNumber::OverwriteChanged, {*target}),
                                         .icon = QMessageBox::Warning,
                                         .buttons = QMessageBox::Yes | QMessageBox::Cancel,
                                         .preset = QMessageBox::Cancel});
    if (answer != QMessageBox::Yes) return false;
  }
  const std::string bytes = m_session.merged(file);
  const std::optional<std::string> error =
      m_target != nullptr ? m_target->write(*target, bytes) : writeWithCopy(*target, bytes);
  if (error) {
    tell(*error);
    return false;
  }
  m_session.markSaved(file);
  statusBar()->showMessage(text(MessageNumber::MergeSaved, {*target}));
  return true;
}

bool CompareWindow::save() {
  bool isSaved = true;
  for (std::size_t file = 0; file < m_session.files().size(); ++file) {
    if (m_session.isModified(file)) isSaved = saveFile(file) && isSaved;
  }
  setWindowModified(m_session.isAnyModified());
  m_actions[Save]->setEnabled(m_session.isAnyModified());
  return isSaved;
}

void CompareWindow::tell(const std::string& sentence) {
  m_questions.ask({.text = shown(sentence), .icon = QMessageBox::Critical});
}

void CompareWindow::closeEvent(QCloseEvent* event) {
  if (!m_session.isAnyModified()) return;
  const auto answer =
      m_questions.ask({.text = text(MessageNumber::SaveChoices),
                       .icon = QMessageBox::Question,
                       .buttons = QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                       .preset = QMessageBox::Save});
  const bool closes = answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
  if (!closes) event->ignore();
}

}  // namespace veldra::host::tandel
