#pragma once

#include <QMainWindow>
#include <memory>
#include <optional>
#include <vector>

#include "host/ReferenceHost.h"
#include "host/desktop/session/Questions.h"
#include "host/tandel/CompareSession.h"
#include "host/tandel/MergeTarget.h"
#include "host/tandel/PaneRows.h"
#include "host/tandel/TandelOptions.h"

class QAction;
class QLabel;
class QListWidget;
class QTreeView;

namespace veldra::host::tandel {

class DifferenceTable;
class Pane;

/// Two files side by side, the list of what differs, and a choice for each of the differences.
///
/// What it is made from must outlive it.
class CompareWindow : public QMainWindow {
  Q_OBJECT

 public:
  CompareWindow(ReferenceHost& host, CompareSession& session, const TandelOptions& options,
                desktop::Questions& questions);
  ~CompareWindow() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QString text(int number, const std::vector<std::string>& values = {}) const;

  void build();
  QWidget* buildPanes();
  QWidget* buildList();
  void addActions();
  void joinScrollBars();
  void showFile(std::size_t file);
  void showCurrent();
  void step(int rows);
  void take(compare::Side side);
  std::size_t currentDifference() const;
  void updateState();
  bool save();
  bool saveFile(std::size_t file);
  Result<std::string> targetOf(std::size_t file);
  void tell(const std::string& sentence);

  ReferenceHost& m_host;
  CompareSession& m_session;
  const TandelOptions& m_options;
  desktop::Questions& m_questions;
  std::unique_ptr<MergeTarget> m_target;  ///< Null when nothing is merged back.
  std::size_t m_file = 0;
  std::vector<PaneRow> m_rows;
  DifferenceTable* m_table = nullptr;
  QListWidget* m_files = nullptr;
  QTreeView* m_list = nullptr;
  Pane* m_first = nullptr;
  Pane* m_second = nullptr;
  QLabel* m_firstName = nullptr;
  QLabel* m_secondName = nullptr;
  std::vector<QAction*> m_actions;
};

}  // namespace veldra::host::tandel
