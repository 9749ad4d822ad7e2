#include "cm/ui/widgets/LineView.h"

#include <gmock/gmock.h>

#include <QDebug>
#include <QHeaderView>
#include <QHoverEvent>
#include <QProxyStyle>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStyleOption>
#include <QTest>
#include <functional>
#include <utility>
#include <vector>

namespace veldra::test {
namespace {

constexpr int Rows = 40;
constexpr int Columns = 4;

/// Notes what it is told, which other styles show and this one does not.
class NotingStyle : public QProxyStyle {
 public:
  NotingStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const auto* const focus = qstyleoption_cast<const QStyleOptionFocusRect*>(option);
    if (focus != nullptr) note(*option, "focus", static_cast<int>(focus->backgroundColor.rgb()));
    if (element == PE_PanelItemViewRow) note(*option, "background", 0);
  }
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    QProxyStyle::drawControl(element, option, painter, widget);
    const auto* const cell = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (cell != nullptr) note(*option, "cell", cell->viewItemPosition);
  }
  QStringList takeNotes() const { return std::exchange(m_notes, {}); }

 private:
  void note(const QStyleOption& option, const char* what, int detail) const {
    if (option.rect.isEmpty()) return;
    m_notes.append(QString());
    QDebug(&m_notes.back()) << what << option.rect << option.state << detail
                            << option.palette.currentColorGroup();
  }
  mutable QStringList m_notes;
};

class LineViewTest : public ::testing::Test {
 protected:
  LineViewTest() {
    QPixmap icon(64, 64);
    icon.fill(Qt::darkGreen);
    for (int row = 0; row < Rows; ++row) {
      for (int column = 0; column < Columns; ++column) {
        const QString text = QStringLiteral("Brewing/a/long/way/%1-%2.vcl").arg(row).arg(column);
        m_lines.setItem(row, column, new QStandardItem(text));
      }
      m_lines.item(row)->setIcon(icon);
    }
    m_filter.setSourceModel(&m_lines);
  }

  void prepare(QTreeView& view) {
    view.setModel(&m_filter);
    view.setRootIsDecorated(false);
    view.setAlternatingRowColors(true);
    view.setUniformRowHeights(true);
    view.setAllColumnsShowFocus(true);
    view.setTextElideMode(Qt::ElideMiddle);
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    view.setIconSize({18, 18});
    view.setStyle(&m_style);
    view.resize(420, 300);
    view.show();
    view.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
  }

  QStandardItemModel m_lines{Rows, Columns};
  QSortFilterProxyModel m_filter;
  NotingStyle m_style;
};

using Act = std::function<void(QTreeView&)>;

void select(QTreeView& view, int row) {
  view.selectionModel()->select(view.model()->index(row, 0),
                                QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void pointAt(QTreeView& view, int row) {
  const QPointF place = view.visualRect(view.model()->index(row, 0)).center();
  QHoverEvent event(QEvent::HoverMove, place, place, place);
  QCoreApplication::sendEvent(view.viewport(), &event);
}

void darken(QTreeView& view) {
  QPalette palette(QColor(0x2b, 0x2d, 0x31));
  palette.setColor(QPalette::Highlight, QColor(0x4c, 0x9a, 0xff));
  palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0x44, 0x55, 0x66));
  view.setPalette(palette);
}

void openAnother(QTreeView& view) {
  auto* const other = new QWidget(&view, Qt::Window);
  other->show();
  other->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(other));
}

struct Look {
  const char* name;
  Act act;
};

const Look Looks[] = {
    {"no row selected", [](QTreeView&) {}},
    {"current row selected",
     [](QTreeView& view) { view.setCurrentIndex(view.model()->index(2, 1)); }},
    {"current row not selected",
     [](QTreeView& view) {
       view.selectionModel()->setCurrentIndex(view.model()->index(4, 0),
                                              QItemSelectionModel::NoUpdate);
     }},
    {"mouse over a selected row", [](QTreeView& view) { pointAt(view, 5); }},
    {"mouse over another", [](QTreeView& view) { pointAt(view, 1); }},
    {"dark", darken},
    {"disabled", [](QTreeView& view) { view.setEnabled(false); }},
    {"from right to left",
     [](QTreeView& view) {
       view.setLayoutDirection(Qt::RightToLeft);
       view.header()->setStretchLastSection(false);
     }},
    {"texts elided, icons large",
     [](QTreeView& view) {
       view.setIconSize({40, 40});
       for (int column = 0; column < Columns; ++column) view.setColumnWidth(column, 80);
     }},
    {"a column moved, another hidden",
     [](QTreeView& view) {
       view.header()->moveSection(1, 2);
       view.setColumnHidden(3, true);
     }},
    {"scrolled", [](QTreeView& view) { view.scrollTo(view.model()->index(30, 3)); }},
    {"another window is the active one", [](QTreeView& view) { openAnother(view); }},
};

/// Nobody should notice that the lines are not painted by Qt any more.
TEST_F(LineViewTest, ALineLooksAsQtPaintsIt) {
  const auto paint = [this](QTreeView& view, const Look& look, bool isSelected) {
    prepare(view);
    for (const int row : {1, 5, 6, 7, 29}) {
      if (isSelected) select(view, row);
    }
    look.act(view);
    QCoreApplication::processEvents();
    m_style.takeNotes();
    const QImage picture = view.grab().toImage();
    return std::pair(picture, m_style.takeNotes().join(QLatin1Char('\n')).toStdString());
  };
  for (const Look& look : Looks) {
    for (const bool isSelected : {false, true}) {
      QTreeView theirs;
      const auto expected = paint(theirs, look, isSelected);
      theirs.hide();
      LineView ours;
      const auto painted = paint(ours, look, isSelected);
      EXPECT_EQ(painted.second, expected.second) << look.name;
      EXPECT_EQ(painted.first, expected.first) << look.name << ", selected: " << isSelected;
    }
  }
}

void click(QTreeView& view, int row, Qt::KeyboardModifiers modifiers) {
  const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, place);
}

struct Step {
  const char* name;
  Act act;
  std::vector<int> selected;
};

std::vector<int> rowsFrom(int first, int last) {
  std::vector<int> rows;
  for (int row = first; row <= last; ++row) rows.push_back(row);
  return rows;
}

TEST_F(LineViewTest, ItKnowsTheSelectedRowsWhateverChangesThem) {
  const auto filter = [this](const char* text) {
    return [this, text](QTreeView&) { m_filter.setFilterFixedString(QString::fromLatin1(text)); };
  };
  const Step steps[] = {
      {"click", [](QTreeView& view) { click(view, 3, Qt::NoModifier); }, {3}},
      {"click with Ctrl", [](QTreeView& view) { click(view, 9, Qt::ControlModifier); }, {3, 9}},
      {"again", [](QTreeView& view) { click(view, 3, Qt::ControlModifier); }, {9}},
      {"click with Shift",
       [](QTreeView& view) { click(view, 5, Qt::ShiftModifier); },
       {3, 4, 5, 9}},
      {"line above goes", [this](QTreeView&) { m_lines.removeRow(1); }, {2, 3, 4, 8}},
      {"selected line goes", [this](QTreeView&) { m_lines.removeRow(3); }, {2, 3, 7}},
      {"lines come", [this](QTreeView&) { m_lines.insertRows(0, 2); }, {4, 5, 9}},
      {"filter", filter("/5-"), {0}},
      {"no filter", filter(""), {5}},
      {"down", [](QTreeView& view) { QTest::keyClick(&view, Qt::Key_Down); }, {6}},
      {"end with Shift",
       [](QTreeView& view) { QTest::keyClick(&view, Qt::Key_End, Qt::ShiftModifier); },
       rowsFrom(6, Rows - 1)},
      {"all", [](QTreeView& view) { QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier); },
       rowsFrom(0, Rows - 1)},
      {"reset", [this](QTreeView&) { m_filter.setSourceModel(nullptr); }, {}},
  };
  LineView view;
  prepare(view);
  // The dialogs ask before Qt has moved what stands below a line that goes.
  QObject::connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, &view,
                   [&view] { view.selectedCount(); });
  for (const Step& step : steps) {
    step.act(view);
    QCoreApplication::processEvents();
    EXPECT_EQ(view.selectedRows(), step.selected) << step.name;
    EXPECT_EQ(view.selectedCount(), step.selected.size()) << step.name;
    std::vector<int> shown;
    for (const QModelIndex& index : view.selectionModel()->selectedRows()) {
      shown.push_back(index.row());
    }
    EXPECT_THAT(shown, ::testing::UnorderedElementsAreArray(step.selected)) << step.name;
  }
}

}  // namespace
}  // namespace veldra::test
