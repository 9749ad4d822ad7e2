#include "host/tandel/window/DifferenceTable.h"

#include <QFont>

#include "host/desktop/Text.h"
#include "host/resources/MessageNumbers.h"

namespace veldra::host::tandel {

using compare::Side;

DifferenceTable::DifferenceTable(CompareSession& session, compare::Texts texts, QObject* parent)
    : QAbstractTableModel(parent), m_session(session), m_texts(std::move(texts)) {}

void DifferenceTable::show(std::size_t file, const compare::FileComparison* comparison) {
  beginResetModel();
  m_file = file;
  m_comparison = comparison;
  endResetModel();
}

void DifferenceTable::choicesChanged() {
  if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, Count - 1));
}

int DifferenceTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || m_comparison == nullptr ? 0 : static_cast<int>(m_comparison->size());
}

int DifferenceTable::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Count;
}

std::string DifferenceTable::textOf(std::size_t row, int column) const {
  if (column == Take) {
    const bool takesSecond = m_session.choice(m_file, row) == Side::Second;
    return m_texts(MessageNumber::TakesSide + (takesSecond ? 1 : 0), {});
  }
  if (const compare::ModelComparison* const model = m_comparison->model()) {
    const compare::Difference& difference = model->differences[row];
    switch (column) {
      case Kind:
        return wordFor(difference.kind, m_texts);
      case Type:
        return difference.type;
      case Element:
        return difference.path;
      default:
        return detailOf(difference, m_texts);
    }
  }
  if (column != Detail) return {};
  if (m_comparison->hunks().empty()) return m_texts(MessageNumber::CompareBinary, {});
  const compare::Hunk& hunk = m_comparison->hunks()[row];
  return '-' + std::to_string(hunk.first + 1) + ',' + std::to_string(hunk.firstCount) + " +" +
         std::to_string(hunk.second + 1) + ',' + std::to_string(hunk.secondCount);
}

QVariant DifferenceTable::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || m_comparison == nullptr) return {};
  const auto row = static_cast<std::size_t>(index.row());
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
    return desktop::shown(textOf(row, index.column()));
  }
  if (role == Qt::FontRole && index.column() == Take) {
    QFont font;
    font.setBold(m_session.choice(m_file, row) == Side::Second);
    return font;
  }
  return {};
}

QVariant DifferenceTable::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return desktop::shown(m_texts(MessageNumber::TandelColumns + section, {}));
}

}  // namespace veldra::host::tandel
