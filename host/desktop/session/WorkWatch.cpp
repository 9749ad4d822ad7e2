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

/// On a thread of its own: the windows cannot be painted while the provider holds theirs.
void tellOfWaiting(const char* entryPoint) {
  qWarning("The source control provider has been busy in its function %s for %d seconds.",
           entryPoint, static_cast<int>(ProviderWatch::Patience.count()));
}

}  // namespace

WorkWatch::WorkWatch(OutputSink& sink)
    : m_sink(sink),
      m_providerWatch({.untilTold = ProviderWatch::Patience,
                       .untilGivenUp = std::chrono::milliseconds::max(),
                       .tell = tellOfWaiting,
                       .giveUp = [](const char*) {},
                       .isInterrupted = [] { return false; }}) {
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
  m_providerWatch.started(entryPoint);
  if (IProgress* dialog = CCMDialog::currentProgress()) dialog->providerCallStarted(entryPoint);
  emit providerCalled(QString::fromLatin1(entryPoint));
}

void WorkWatch::providerCallEnded() {
  m_providerWatch.ended();
  if (IProgress* dialog = CCMDialog::currentProgress()) dialog->providerCallEnded();
  emit providerCalled({});
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
  if (IProgress* dialog = CCMDialog::currentProgress()) {
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

void WorkWatch::rest() {
  // Fired by our own pump: the work goes on.
  if (m_isPumping) return;
  m_isWorking = false;
  m_isCancelled = false;
  emit workEnded();
}

bool WorkWatch::mayPass(const QObject& watched, const QEvent& event) {
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
