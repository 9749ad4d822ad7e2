#pragma once

#include <QWidget>
#include <string>

#include "host/desktop/logic/UnitSheet.h"
#include "host/desktop/session/DesktopSession.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;
class QTabWidget;
class QToolButton;

namespace veldra::host::desktop {

class AttributeTable;
class DiagramView;
class ElidedLabel;

/// Shows one unit and lets the user change it. What is changed goes into the model at once, but not
/// into the file.
class UnitEditor : public QWidget {
  Q_OBJECT

 public:
  /// `session` must outlive the object.
  explicit UnitEditor(DesktopSession& session, QWidget* parent = nullptr);

  /// Shows the unit of a file as it is now, or nothing for an empty name. What was typed before is
  /// taken over first.
  void showUnit(const std::string& file);
  /// The same unit anew, after it may have changed elsewhere; what was typed and not taken over yet
  /// is dropped.
  void reload();
  /// Takes over what has been typed.
  void commit();
  const std::string& file() const { return m_file; }

 signals:
  void unitChanged();
  void checkOutWanted();

 private:
  UnitCore* unit();
  void build();
  QWidget* makeHead();
  QWidget* makeBanner();
  QWidget* makeElements();
  QWidget* makeAttributes();
  QWidget* makeDiagram();
  void fill(UnitCore& unit);
  void fillHead(const UnitCore& unit);
  void fillTabs(bool isDiagram);
  void showElement(int row);
  void takeElementAttributes();
  void removeElements();
  UnitSheet sheet() const;
  std::vector<SheetElement> elements() const;
  void addBox();
  void renameBox(std::size_t box);
  void removeBoxes();
  void addConnection();
  void change(const UnitSheet& after);

  DesktopSession& m_session;
  std::string m_file;
  std::string m_filledFile;              ///< Whose content the tabs show.
  UnitSheet m_sheet;                     ///< As the body has it.
  std::vector<SheetElement> m_elements;  ///< The rows of the table, with their attributes.
  bool m_isEditable = false;
  bool m_isFilling = false;

  QWidget* m_content;
  QLabel* m_picture;
  ElidedLabel* m_path;
  QWidget* m_banner;
  QLabel* m_reason;
  QPushButton* m_checkOut;
  QLineEdit* m_name;
  QPlainTextEdit* m_description;
  QTabWidget* m_tabs;
  QWidget* m_elementPage;
  QTableWidget* m_elementTable;
  AttributeTable* m_elementAttributes;
  QWidget* m_attributePage;
  AttributeTable* m_attributes;
  QWidget* m_diagramPage;
  DiagramView* m_diagram;
  std::vector<QWidget*> m_tools;  ///< Buttons that change something.
};

}  // namespace veldra::host::desktop
