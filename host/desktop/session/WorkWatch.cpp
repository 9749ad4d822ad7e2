#include "host/desktop/session/WorkWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QWindow>

#include "cm/ui/CCMDialog.h"

namespace veldra::host::desktop {
namespace {

// Longer than an event needs, shorter than a person notices.
constexpr int PumpMilliseconds = 15;

bool isUserInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::Drop:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

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
    QCoreApplication::instance()->installEventFilter(this);
    QCoreApplication::processEvents(QEventLoop::AllEvents, PumpMilliseconds);
    QCoreApplication::instance()->removeEventFilter(this);
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

bool WorkWatch::mayPass(const QObject* watched) const {
  if (!m_cancelWidget) return false;
  const QObject* window = m_cancelWidget->window()->windowHandle();
  if (watched == window) return true;
  const auto* widget = qobject_cast<const QWidget*>(watched);
  return widget && (widget == m_cancelWidget || m_cancelWidget->isAncestorOf(widget));
}

bool WorkWatch::eventFilter(QObject* watched, QEvent* event) {
  if (!isUserInput(event->type())) return false;
  if (event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    cancel();
    return true;
  }
  if (event->type() != QEvent::Close && mayPass(watched)) return false;
  // A window manager's wish to close has to be refused, not swallowed.
  event->ignore();
  return true;
}

}  // namespace veldra::host::desktop
