#include "tests/cm/ui/DialogTest.h"

namespace veldra::test {

DialogTest::DialogTest() {
  m_project.record.aggregates = {&m_package, &m_file};
  m_package.record.aggregates = {&m_class};
}

void DialogTest::onNextWindow(const std::function<void(QDialog&)>& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* const window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (window != nullptr) {
      act(*window);
    } else {
      onNextWindow(act);
    }
  });
}

}  // namespace veldra::test
