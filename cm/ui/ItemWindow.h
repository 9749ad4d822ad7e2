#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cm/ui/logic/ItemButtons.h"
#include "cm/ui/logic/ItemRows.h"
#include "cm/ui/logic/ItemView.h"
#include "cm/ui/widgets/CommandWindow.h"
#include "cm/ui/widgets/LineView.h"

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace veldra {

class CommandButton;
class ItemListModel;
class UnitFilter;

/// What the archive browser and the synchronize dialog have in common: a sorted list of archive
/// items with a filter below a row of buttons.
class VELDRA_CM_UI_EXPORT ItemWindow : public CommandWindow, protected ItemView {
  Q_OBJECT

 public:
  ~ItemWindow() override;

  /// Shows the rows as they are now.
  void CmFillCI();
  /// Sorts by the remembered column and fills.
  void sortItems();
  /// Reads what is selected, and remembers the rows.
  CMArchiveItemList CmSelectedItems() override;
  void CmSelectTheItems();
  LineView* list() const { return m_list; }

 protected:
  /// `name` is what it remembers things under.
  ItemWindow(const QString& name, int listId, std::shared_ptr<ItemRows> rows, QWidget* parent);

  ItemRows& rows() const { return *m_rows; }
  CommandButton* addButton(ItemButton button, const std::function<void()>& press);
  /// A place for more controls between the buttons and the list.
  QVBoxLayout* head() const { return m_head; }
  /// What is said instead of a list without rows.
  void setEmptyText(const QString& text);
  /// To be called once, when all controls are there.
  void start();
  /// Around whatever changes the rows.
  void beginRefill();
  void endRefill();

  // --- ItemView ---
  CMArchiveItemList allItems() override { return m_rows->all(); }
  std::optional<CommandOptions> askOptions(const OptionPresets& presets) override;
  std::optional<VersionChoice> askVersions() override;
  void commandStarts() override;
  void commandEnds() override;
  void refreshItems() override;
  const BatchResults* results() const override;

 private:
  void OnColumnclick(int column);
  void applyFilter(const QString& text);
  void selectFailed();
  void showContextMenu(const QPoint& place);
  void updateState();
  void afterCommand() override;

  std::string m_name;
  std::shared_ptr<ItemRows> m_rows;
  ItemListModel* m_model;
  UnitFilter* m_unitFilter;
  LineView* m_list;
  QLineEdit* m_filter;
  QHBoxLayout* m_buttonRow;
  QVBoxLayout* m_head;
  QLabel* m_empty;
  std::vector<CommandButton*> m_buttons;
  std::vector<int> m_selectedRows;
  bool m_wasEmpty = true;  ///< Before the refill at hand.
  QString m_runningCaption;
  bool m_areColumnsFitted = false;
};

}  // namespace veldra
