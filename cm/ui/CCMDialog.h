#pragma once

#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "cm/ui/ControlIds.h"
#include "cm/ui/Export.h"
#include "cm/ui/logic/CommandView.h"
#include "cm/ui/logic/LiveUnits.h"
#include "cm/ui/widgets/CommandWindow.h"

class QItemSelection;
class QLabel;
class QLineEdit;
class QModelIndex;

namespace veldra {

class ButtonPanel;
class LineView;
class UnitFilter;
class UnitListModel;
class UnitTreeModel;
struct WorkspaceData;

/// The main CM dialog: the units of the active project as a tree or as a list, and a button for
/// every CM operation.
///
/// It is used on the host's user-interface thread. Commands are synchronous; while one runs the
/// dialog paints but takes no input and cannot be closed. What a command asks beyond its options,
/// and every message, goes through the host (`IUserMessages`).
class VELDRA_CM_UI_EXPORT CCMDialog : public CommandWindow, private CommandView {
  Q_OBJECT

 public:
  /// Lists the workspace. Without a host or a project it opens empty and says what to do first.
  explicit CCMDialog(QWidget* parent = nullptr);
  ~CCMDialog() override;

  /// Makes a dialog and runs it modally.
  static void DoPopupCmDialog(QWidget* parent = nullptr);

  /// As if the button of that number were pressed. False when there is none, it is hidden or
  /// disabled, or a command runs already.
  bool runCommand(int controlId);
  /// Runs a user's own command for one unit.
  void RunUserDefCommandFromBrowser(const std::string& command, IUnit* unit);

  // --- selection ---
  /// The units that the next operation acts on.
  UnitList CmSelectedItems() override;
  UnitList FlatCmSelectedItems();
  UnitList TreeCmSelectedItems();
  std::size_t GetSelectedCount() override;
  /// These three warn the user when they are not satisfied.
  bool SelectedAtLeastOne();
  bool SelectedOnlyOne();
  bool SelectedOneAndOnlyOne();
  bool CheckForDescendentsInSelectedItems() const;
  void NewCmSelectedItem(IUnit* unit);
  /// Selects the units of these files, whatever was selected before.
  void selectFiles(const std::function<bool(const std::string& fullFileName)>& isMeant);

  // --- filling ---
  void updateList();
  void CmFillCI();
  void sortItems();
  void CmSelectTheItems();
  void DoAfterOpRefresh() override;
  /// As the buttons of the views do it.
  void setView(bool flat);
  /// The units as they stand in the list.
  const LiveUnits& units();

 protected:
  /// Puts the workspace into a new order: position i gets what was at `order[i]`.
  virtual void PrepareWsList(const std::vector<std::size_t>& order);

  bool event(QEvent* event) override;
  bool nativeEvent(const QByteArray& type, void* message, qintptr* result) override;
  void changeEvent(QEvent* event) override;

 private:
  /// Fills the views once, however often that is asked for inside.
  class RefillScope;

  // --- CommandView ---
  std::optional<CommandOptions> askOptions(const OptionPresets& presets) override;
  void commandStarts(const CommandRow& row) override;
  void commandEnds() override;
  void dropGoneUnits() override;
  const BatchResults* results() const override;

  void OnInitDialog();
  void buildControls();
  void layOutControls();
  void connectControls();
  void addColumns();
  void OnColumnclickFlatlist(int column);
  void press(DialogCommand command);
  void runPressed(DialogCommand command);
  void runUserCommand(DialogCommand command);
  void refreshStatus();
  void listArchive();
  void synchronize();
  void showContextMenu(const QPoint& place);
  void refresh40001();
  void afterCommand() override;
  void fillViews();
  /// True when rows of the list stand elsewhere now.
  bool fillVisibleView();
  void showView();
  void showRowsAnew();
  void expandTree();
  bool orderRows();
  void applyFilter(const QString& text);
  void rememberTreeSelection();
  void restoreTreeSelection();
  LineView* visibleView() const;
  QModelIndex sourceOf(const QModelIndex& index) const;
  void updateState();

  std::unique_ptr<WorkspaceData> m_data;
  UnitListModel* m_listModel;
  UnitTreeModel* m_treeModel;
  UnitFilter* m_listFilter;
  UnitFilter* m_treeFilter;
  ButtonPanel* m_panel = nullptr;
  LineView* m_list = nullptr;
  LineView* m_tree = nullptr;
  QLineEdit* m_filter = nullptr;
  QLabel* m_empty = nullptr;

  LiveUnits m_selection;
  std::vector<int> m_selectedRows;
  std::size_t m_selectedSince = 0;           ///< When the list had these rows selected.
  std::vector<std::string> m_selectedFiles;  ///< In the tree.
  int m_refillDepth = 0;
  bool m_isRefillDue = false;
  bool m_isTreeDue = false;
  bool m_keepsSelection = false;  ///< Rows that stay are selected again after the refill.
  bool m_isExpandDue = false;
  bool m_isOrderDue = false;
  bool m_isFitDue = true;
  bool m_isRefreshDue = false;
  QTimer m_retry;  ///< Of a refresh that came while a command was at work.
};

}  // namespace veldra
