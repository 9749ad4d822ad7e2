#pragma once

#include <QPlainTextEdit>
#include <vector>

#include "host/tandel/PaneRows.h"

namespace veldra::host::tandel {

/// One side of a comparison: its lines, with those that differ marked.
class Pane : public QPlainTextEdit {
  Q_OBJECT

 public:
  enum class Shows { First, Second };

  Pane(Shows shows, const QString& name, QWidget* parent);

  /// The rows must outlive what is shown.
  void setRows(const std::vector<PaneRow>& rows);
  /// Marks the lines of this difference more than the others, and brings them into sight.
  void setCurrent(std::size_t difference);

 signals:
  /// The user has put the cursor into a line that differs.
  void differencePicked(std::size_t difference);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  bool has(const PaneRow& row) const;
  void markVisible();
  QColor colourOf(const PaneRow& row) const;
  void pick();

  Shows m_shows;
  const std::vector<PaneRow>* m_rows = nullptr;
  std::size_t m_current = PaneRow::None;
};

}  // namespace veldra::host::tandel
