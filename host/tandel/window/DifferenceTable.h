#pragma once

#include <QAbstractTableModel>

#include "host/compare/ComparisonReport.h"
#include "host/tandel/CompareSession.h"

namespace veldra::host::tandel {

/// The differences of one file as rows, with the side that was chosen for each.
class DifferenceTable : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Take, Kind, Type, Element, Detail, Count };

  DifferenceTable(CompareSession& session, compare::Texts texts, QObject* parent);

  /// Shows this file from now on; null when it cannot be read.
  void show(std::size_t file, const compare::FileComparison* comparison);
  void choicesChanged();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::string textOf(std::size_t row, int column) const;

  CompareSession& m_session;
  compare::Texts m_texts;
  std::size_t m_file = 0;
  const compare::FileComparison* m_comparison = nullptr;
};

}  // namespace veldra::host::tandel
