#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "cm/ui/Export.h"
#include "cm/ui/logic/OptionRules.h"

namespace veldra {

/// What the windows for options have in common: a form over an OK and a Cancel button. They collect
/// options and check them; none of them does anything itself.
class VELDRA_CM_UI_EXPORT OptionDialog : public QDialog {
  Q_OBJECT

 public:
  /// What the user chose; to be read after OK.
  virtual CommandOptions options() const = 0;
  /// Closes with OK when the options are in order; otherwise the user is told and it stays open.
  void accept() override;

 protected:
  OptionDialog(int dialogId, OptionPresets presets, QWidget* parent);

  const OptionPresets& presets() const { return m_presets; }
  QFormLayout* form() const { return m_form; }
  /// Why the window may not be closed with OK, as a message; empty when it may.
  virtual std::string objection() const;

  QPlainTextEdit* addComment(int id);
  QLineEdit* addLine(int id, const QString& label, const QString& text = {});
  QCheckBox* addBox(int id, const QString& label, bool isSet, bool isEnabled = true);
  /// The two boxes that most of the windows end with.
  QCheckBox* addDescendants(int id);
  QCheckBox* addInformationFiles(int id);
  void setAcceptText(const QString& text);

 private:
  void addUnits();

  OptionPresets m_presets;
  QFormLayout* m_form;
  QDialogButtonBox* m_buttons;
};

}  // namespace veldra
