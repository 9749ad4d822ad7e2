#include "host/desktop/session/WorkWatch.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>

#include "cm/ui/CCMDialog.h"
#include "cm/ui/widgets/HeldInput.h"

namespace veldra::host::desktop {
namespace {

// Longer than an event needs, shorter than a person notices.
constexpr int PumpMilliseconds = 15;

}  // namespace

WorkWatch::WorkWatch(OutputSink& sink) : m_sink(sink) {
  m_restTimer.setSingleShot(true);
  m_restTimer.setInterval(0);
  connect(&m_restTimer, &QTimer::timeout, this, &WorkWatch::rest);
}

void WorkWatch::cancel() {
  if (!m_isWorking || m_isCancelled) return;
  m_isCancelled = true;
  m_results.cancelled();
  emit cancelled();
}

void WorkWatch::providerCallStarted(const char* entryPoint) {
  m_provider.expectCall();
  m_entryPoint = QString::fromLatin1(entryPoint);
  m_toldSeconds = 0;
  m_callClock.start();
  if (IProgress* dialog = CCMDialog::currentProgress()) dialog->providerCallStarted(entryPoint);
  emit providerCalled(m_entryPoint);
}

void WorkWatch::providerCallEnded() {
  m_entryPoint.clear();
  if (IProgress* dialog = CCMDialog::currentProgress()) dialog->providerCallEnded();
  emit providerCalled({});
}

void WorkWatch::waitForProvider() {
  pump();
  const auto seconds = static_cast<int>(m_callClock.elapsed() / 1000);
  if (m_callClock.elapsed() < m_patience.count() || seconds < m_toldSeconds) return;
  m_toldSeconds = seconds + 1;
  emit providerHangs(m_entryPoint, seconds);
}

bool WorkWatch::isCancelled() {
  IProgress* dialog = CCMDialog::currentProgress();
  return m_isCancelled || (dialog && dialog->isCancelled());
}

void WorkWatch::unitStarted(const ProgressStep& step) {
  if (IProgress* dialog = CCMDialog::currentProgress()) dialog->unitStarted(step);
  emit stepChanged(step);
  pump();
}

void WorkWatch::unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words) {
  if (IProgress* dialog = CCMDialog::currentProgress()) dialog->unitEnded(step, end, words);
  m_results.unitEnded(step, end, words);
}

void WorkWatch::pump() {
  if (m_isPumping) return;
  m_isPumping = true;
  if (!m_isWorking) {
    m_isWorking = true;
    m_isCancelled = false;
    emit workStarted();
  }
  IProgress* const dialog = CCMDialog::currentProgress();
  if (dialog && !(m_notice && m_notice->isVisible())) {
    // The CM dialog shows its own progress and holds back its own input.
    CCMDialog::keepPainting();
    if (dialog->isCancelled()) cancel();
  } else {
    const HeldInput held(
        [this](const QObject& watched, const QEvent& event) { return mayPass(watched, event); });
    QCoreApplication::processEvents(QEventLoop::AllEvents, PumpMilliseconds);
  }
  m_isPumping = false;
  m_restTimer.start();
}

void WorkWatch::discardInput() {
  if (m_isWorking) pump();
}

void WorkWatch::rest() {
  // Fired by our own pump: the work goes on.
  if (m_isPumping) return;
  m_isWorking = false;
  m_isCancelled = false;
  emit workEnded();
}

bool WorkWatch::isInNotice(const QObject& watched) const {
  if (!m_notice || !m_notice->isVisible()) return false;
  const auto* widget = qobject_cast<const QWidget*>(&watched);
  const auto* window = qobject_cast<const QWindow*>(&watched);
  if (window) widget = QWidget::find(window->winId());
  // What is told in front of the notice belongs to it.
  while (widget && widget != m_notice) widget = widget->parentWidget();
  return widget != nullptr;
}

bool WorkWatch::mayPass(const QObject& watched, const QEvent& event) {
  if (isInNotice(watched)) return true;
  if (event.type() == QEvent::KeyPress &&
      static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape) {
    cancel();
    return false;
  }
  if (event.type() == QEvent::Close || !m_cancelWidget) return false;
  if (&watched == m_cancelWidget->window()->windowHandle()) return true;
  const auto* widget = qobject_cast<const QWidget*>(&watched);
  return widget && (widget == m_cancelWidget || m_cancelWidget->isAncestorOf(widget));
}

}  // namespace veldra::host::desktop
