#include "host/desktop/window/UnitEditor.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "host/desktop/Text.h"
#include "host/desktop/window/AttributeTable.h"
#include "host/desktop/window/DiagramView.h"
#include "host/desktop/window/EditorParts.h"
#include "host/desktop/window/Icons.h"
#include "host/desktop/window/TableTools.h"

namespace veldra::host::desktop {

UnitEditor::UnitEditor(DesktopSession& session, QWidget* parent)
    : QWidget(parent), m_session(session) {
  build();
  showUnit({});
}

UnitCore* UnitEditor::unit() {
  Project* project = m_session.project();
  return project && !m_file.empty() ? project->unitByFile(m_file) : nullptr;
}

void UnitEditor::build() {
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(0, 0, 0, 0);
  m_content = new QWidget;
  outer->addWidget(m_content);
  auto* layout = new QVBoxLayout(m_content);
  layout->setContentsMargins(16, 14, 16, 12);
  layout->setSpacing(10);
  layout->addWidget(makeHead());
  layout->addWidget(makeBanner());

  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  m_name = new QLineEdit;
  m_name->setAccessibleDescription(tr("The name of the unit"));
  form->addRow(tr("&Name"), m_name);
  m_description = new QPlainTextEdit;
  m_description->setAccessibleDescription(tr("What the unit is for, in your words"));
  m_description->setTabChangesFocus(true);
  m_description->setFixedHeight(fontMetrics().lineSpacing() * 4 + 14);
  form->addRow(tr("Te&xt"), m_description);
  layout->addLayout(form);
  connect(m_name, &QLineEdit::editingFinished, this, &UnitEditor::commit);

  m_tabs = new QTabWidget;
  m_tabs->setDocumentMode(true);
  m_elementPage = makeElements();
  m_attributePage = makeAttributes();
  m_diagramPage = makeDiagram();
  layout->addWidget(m_tabs, 1);
}

QWidget* UnitEditor::makeHead() {
  auto* head = new QWidget;
  auto* layout = new QHBoxLayout(head);
  layout->setContentsMargins(0, 0, 0, 0);
  m_picture = new QLabel;
  m_path = new ElidedLabel;
  m_path->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_path->setForegroundRole(QPalette::PlaceholderText);
  layout->addWidget(m_picture);
  layout->addWidget(m_path, 1);
  return head;
}

QWidget* UnitEditor::makeBanner() {
  auto* banner = new Banner;
  m_banner = banner;
  m_reason = banner->label();
  m_checkOut =
      banner->addButton(tr("Check &Out…"), tr("Takes the unit from the archive to change it"));
  connect(m_checkOut, &QPushButton::clicked, this, &UnitEditor::checkOutWanted);
  return banner;
}

QWidget* UnitEditor::makeElements() {
  auto* page = new EditorPage;
  m_elementTable = new QTableWidget(0, 2);
  m_elementTable->setHorizontalHeaderLabels({tr("Type"), tr("Name")});
  m_elementTable->setAccessibleName(tr("Elements"));
  m_elementTable->setAccessibleDescription(tr("What the unit consists of"));
  dressTable(*m_elementTable);
  m_elementAttributes = new AttributeTable;
  m_elementAttributes->setAccessibleName(tr("Attributes of the element"));
  m_elementAttributes->setAccessibleDescription(tr("Those of the selected element"));
  auto* splitter = new QSplitter;
  splitter->addWidget(m_elementTable);
  splitter->addWidget(m_elementAttributes);
  splitter->setChildrenCollapsible(false);
  page->setContent(splitter);
  m_tools.push_back(page->addTool("plus", tr("Add an element"), [this] {
    m_elements.push_back({.type = "Attribute"});
    beginNewRow(*m_elementTable);
  }));
  m_tools.push_back(
      page->addTool("remove", tr("Remove the selected elements"), [this] { removeElements(); }));
  m_tools.push_back(page->addTool("add", tr("Add an attribute to the element"), [this] {
    if (m_elementTable->currentRow() >= 0) m_elementAttributes->addRow();
  }));
  connect(m_elementTable, &QTableWidget::currentCellChanged, this,
          [this](int row) { showElement(row); });
  connect(m_elementTable, &QTableWidget::itemChanged, this, &UnitEditor::commit);
  connect(m_elementAttributes, &AttributeTable::edited, this, &UnitEditor::takeElementAttributes);
  return page;
}

QWidget* UnitEditor::makeAttributes() {
  auto* page = new EditorPage;
  m_attributes = new AttributeTable;
  m_attributes->setAccessibleName(tr("Attributes"));
  m_attributes->setAccessibleDescription(tr("Those of the unit itself"));
  page->setContent(m_attributes);
  m_tools.push_back(
      page->addTool("plus", tr("Add an attribute"), [this] { m_attributes->addRow(); }));
  m_tools.push_back(page->addTool("remove", tr("Remove the selected attributes"),
                                  [this] { m_attributes->removeSelected(); }));
  connect(m_attributes, &AttributeTable::edited, this, &UnitEditor::commit);
  return page;
}

QWidget* UnitEditor::makeDiagram() {
  auto* page = new EditorPage;
  m_diagram = new DiagramView;
  page->setContent(m_diagram);
  m_tools.push_back(page->addTool("plus", tr("Add a box"), [this] { addBox(); }));
  m_tools.push_back(
      page->addTool("line", tr("Connect the two selected boxes"), [this] { addConnection(); }));
  m_tools.push_back(
      page->addTool("remove", tr("Remove the selected boxes"), [this] { removeBoxes(); }));
  connect(m_diagram, &DiagramView::boxesMoved, this, &UnitEditor::commit);
  connect(m_diagram, &DiagramView::boxActivated, this, &UnitEditor::renameBox);
  return page;
}

void UnitEditor::showUnit(const std::string& file) {
  if (file != m_file) commit();
  m_file = file;
  reload();
}

void UnitEditor::reload() {
  UnitCore* shownUnit = unit();
  m_content->setVisible(shownUnit != nullptr);
  m_sheet = {};
  m_isEditable = false;
  if (shownUnit) fill(*shownUnit);
}

void UnitEditor::fill(UnitCore& unit) {
  m_isFilling = true;
  Problem problem;
  const ModelText* text = unit.text(problem);
  m_sheet = text ? sheetOf(text->body) : UnitSheet{.name = unit.record().name};
  const bool isReadOnly = unit.mode() == FileMode::ReadOnly;
  m_isEditable = text && !isReadOnly;
  m_banner->setVisible(!m_isEditable);
  m_checkOut->setVisible(isReadOnly);
  m_reason->setText(isReadOnly ? tr("This unit is read-only. Check it out to change it.")
                               : shownName(problem.what + " " + problem.wayOut));
  fillHead(unit);
  fillTabs(text && unit.record().unitType == "Diagram");
  m_isFilling = false;
}

void UnitEditor::fillHead(const UnitCore& unit) {
  const OutlineNode look{.type = unit.record().unitType,
                         .isControlledFile = unit.record().controlledFile};
  m_picture->setPixmap(unitIcon(look).pixmap(22, 22));
  m_path->setWhole(shownName(unit.record().unitType) + "  ·  " +
                   shownName(unit.relativeFileName()));
  m_name->setText(shown(m_sheet.name));
  m_name->setReadOnly(!m_isEditable);
  m_description->setPlainText(shown(m_sheet.description));
  m_description->setReadOnly(!m_isEditable);
  for (QWidget* tool : m_tools) tool->setEnabled(m_isEditable);
}

void UnitEditor::fillTabs(bool isDiagram) {
  const QWidget* former = m_tabs->currentWidget();
  m_tabs->clear();
  if (isDiagram) m_tabs->addTab(m_diagramPage, tr("&Diagram"));
  m_tabs->addTab(m_elementPage, tr("&Elements (%1)").arg(m_sheet.elements.size()));
  m_tabs->addTab(m_attributePage, tr("&Attributes (%1)").arg(m_sheet.attributes.size()));
  const int kept = m_file == m_filledFile ? m_tabs->indexOf(const_cast<QWidget*>(former)) : 0;
  m_filledFile = m_file;
  m_tabs->setCurrentIndex(std::max(0, kept));

  m_diagram->showSheet(m_sheet, m_isEditable);
  m_attributes->showRows(m_sheet.attributes, m_isEditable);
  m_elements = m_sheet.elements;
  const int current = m_elementTable->currentRow();
  const QSignalBlocker quiet(m_elementTable);
  m_elementTable->setRowCount(static_cast<int>(m_elements.size()));
  for (int row = 0; row < m_elementTable->rowCount(); ++row) {
    const SheetElement& element = m_elements[static_cast<std::size_t>(row)];
    m_elementTable->setItem(row, 0, new QTableWidgetItem(shown(element.type)));
    m_elementTable->setItem(row, 1, new QTableWidgetItem(shown(element.name)));
  }
  m_elementTable->setEditTriggers(m_isEditable ? QAbstractItemView::DoubleClicked |
                                                     QAbstractItemView::EditKeyPressed
                                               : QAbstractItemView::EditTriggers());
  if (m_elementTable->rowCount() > 0) {
    m_elementTable->setCurrentCell(std::clamp(current, 0, m_elementTable->rowCount() - 1), 1);
  }
  showElement(m_elementTable->currentRow());
}

void UnitEditor::showElement(int row) {
  const bool isElement = row >= 0 && row < static_cast<int>(m_elements.size());
  m_elementAttributes->setEnabled(isElement);
  m_elementAttributes->showRows(isElement ? m_elements[static_cast<std::size_t>(row)].attributes
                                          : std::vector<SheetAttribute>(),
                                m_isEditable && isElement);
}

void UnitEditor::takeElementAttributes() {
  const int row = m_elementTable->currentRow();
  if (row < 0 || row >= static_cast<int>(m_elements.size())) return;
  m_elements[static_cast<std::size_t>(row)].attributes = m_elementAttributes->attributes();
  commit();
}

void UnitEditor::removeElements() {
  for (const int row : selectedRows(*m_elementTable)) {
    m_elements.erase(m_elements.begin() + row);
    const QSignalBlocker quiet(m_elementTable);
    m_elementTable->removeRow(row);
  }
  commit();
  showElement(m_elementTable->currentRow());
}

std::vector<SheetElement> UnitEditor::elements() const {
  std::vector<SheetElement> elements;
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    SheetElement element = m_elements[i];
    const int row = static_cast<int>(i);
    element.type = editedBytes(*m_elementTable, row, 0, element.type);
    element.name = editedBytes(*m_elementTable, row, 1, element.name);
    if (!element.type.empty() || !element.name.empty()) elements.push_back(std::move(element));
  }
  return elements;
}

UnitSheet UnitEditor::sheet() const {
  UnitSheet sheet = m_sheet;
  if (m_name->text() != shown(m_sheet.name)) sheet.name = bytesOf(m_name->text());
  if (m_description->toPlainText() != shown(m_sheet.description)) {
    sheet.description = bytesOf(m_description->toPlainText());
  }
  sheet.attributes = m_attributes->attributes();
  sheet.elements = elements();
  sheet.boxes = m_diagram->boxes();
  return sheet;
}

void UnitEditor::commit() {
  if (m_isEditable && !m_isFilling) change(sheet());
}

void UnitEditor::change(const UnitSheet& after) {
  UnitCore* changed = unit();
  if (!changed || after == m_sheet || after.name.empty()) return;
  ModelUndo& undo = changed->project().undo();
  Problem problem;
  undo.startTransaction(nullptr, 1);
  const bool isDone =
      changed->edit([this, &after](Json& body) { applySheet(m_sheet, after, body); }, problem);
  undo.endTransaction();
  if (!isDone) m_session.tell({problem}, {});
  reload();
  emit unitChanged();
}

void UnitEditor::addBox() {
  bool isGiven = false;
  const QString element =
      QInputDialog::getText(this, tr("Add Box"), tr("Element"), QLineEdit::Normal, {}, &isGiven);
  if (!isGiven || element.isEmpty()) return;
  UnitSheet after = sheet();
  double below = 40;
  for (const SheetBox& box : after.boxes) below = std::max(below, box.y + box.height + 30);
  after.boxes.push_back({bytesOf(element), 40, below, 140, 70});
  change(after);
}

void UnitEditor::renameBox(std::size_t box) {
  UnitSheet after = sheet();
  if (!m_isEditable || box >= after.boxes.size()) return;
  bool isGiven = false;
  const std::string former = after.boxes[box].element;
  const QString element = QInputDialog::getText(this, tr("Rename Box"), tr("Element"),
                                                QLineEdit::Normal, shown(former), &isGiven);
  if (!isGiven || element.isEmpty() || element == shown(former)) return;
  after.boxes[box].element = bytesOf(element);
  for (SheetConnection& connection : after.connections) {
    if (connection.from == former) connection.from = bytesOf(element);
    if (connection.to == former) connection.to = bytesOf(element);
  }
  change(after);
}

void UnitEditor::removeBoxes() {
  UnitSheet after = sheet();
  for (const std::size_t index : m_diagram->selectedBoxes()) {
    const std::string element = after.boxes[index].element;
    after.boxes.erase(after.boxes.begin() + static_cast<std::ptrdiff_t>(index));
    std::erase_if(after.connections, [&element](const SheetConnection& connection) {
      return connection.from == element || connection.to == element;
    });
  }
  change(after);
}

void UnitEditor::addConnection() {
  const std::vector<std::size_t> selected = m_diagram->selectedBoxes();
  if (selected.size() != 2) {
    m_session.questions().ask({.text = tr("Select the two boxes to connect first.")});
    return;
  }
  UnitSheet after = sheet();
  after.connections.push_back(
      {after.boxes[selected[1]].element, after.boxes[selected[0]].element, {}});
  change(after);
}

}  // namespace veldra::host::desktop
