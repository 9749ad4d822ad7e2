#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>

#include "cm/ui/CCMDialog.h"
#include "cm/ui/widgets/Control.h"
#include "tests/support/HostTest.h"

namespace veldra::test {

/// Dialogs over the in-memory host, whose user answers every message; option windows are answered
/// by what a test prepares.
class DialogTest : public HostTest {
 protected:
  /// A project with a package that owns a class, and an embedded file beside them.
  DialogTest();

  /// Acts on the next modal window as soon as it is open.
  static void onNextWindow(const std::function<void(QDialog&)>& act);
  /// Presses OK, or gives up.
  static void acceptNextWindow() {
    onNextWindow([](QDialog& window) { window.accept(); });
  }
  static void rejectNextWindow() {
    onNextWindow([](QDialog& window) { window.reject(); });
  }
  template <class Widget = QWidget>
  static Widget& at(const QWidget& window, int id) {
    auto* const found = findControl<Widget>(window, id);
    if (found == nullptr) throw std::runtime_error("no control " + std::to_string(id));
    return *found;
  }

  std::vector<std::string> commands() const { return m_host.scriptedProcesses.commands(); }

  MemoryPackage& m_package = m_model.addPackage("Brewing.vpk");
  MemoryUnit& m_class = m_model.addUnit("Brewing/Boiler.vcl");
  MemoryEmbeddedFile& m_file = m_model.addEmbeddedFile("Notes.txt");
};

}  // namespace veldra::test
