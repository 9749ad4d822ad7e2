#pragma once

#include <QDialog>

#include "host/desktop/logic/SettingsTable.h"
#include "host/desktop/session/DesktopSession.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableView;

namespace veldra::host::desktop {

class SettingsModel;

/// The CM settings: the tool and its archive, and every property with where its value comes from.
class SettingsDialog : public QDialog {
  Q_OBJECT

 public:
  /// `unit` is the one whose settings are shown; null for the project's.
  SettingsDialog(DesktopSession& session, UnitCore* unit, QWidget* parent);
  void reject() override;

 private:
  void build();
  QWidget* makeToolBox();
  void addProviders();
  QWidget* makeTable();
  QWidget* makeValueBox();
  void fill();
  void showRow();
  void takeTool();
  void takeProvider(const std::string& chosen);
  std::string archive() const;
  void takeArchive();
  void store();
  void reset();
  bool set(const PropertyKey& key, const std::string& value, Origin target);

  DesktopSession& m_session;
  UnitCore* m_unit;
  SettingsTable m_table;
  SettingsModel* m_model;
  QComboBox* m_backEnd;
  QLineEdit* m_archive;
  QLineEdit* m_filter;
  QCheckBox* m_everyTool;
  QCheckBox* m_onlyChanged;
  QTableView* m_view;
  QLabel* m_source;
  QPlainTextEdit* m_value;
  QComboBox* m_target;
  QPushButton* m_store;
  QPushButton* m_reset;
};

}  // namespace veldra::host::desktop
