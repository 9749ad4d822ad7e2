#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <chrono>

#include "cm/host/IProgress.h"
#include "cm/ui/logic/BatchResults.h"
#include "host/ProviderWatch.h"
#include "host/desktop/session/OutputSink.h"
#include "host/desktop/session/ProviderThread.h"
#include "host/platform/Processes.h"

namespace veldra::host::desktop {

/// Keeps the windows alive while the module works.
///
/// The module's operations run on this thread until they are done. Between units, and while a child
/// runs or a provider is called, events are handled: windows are painted and timers run, but what
/// the user types and clicks is thrown away, except in the widget that cancels, in the notice about
/// a provider that does not answer, and the Escape key, which cancels too.
class WorkWatch : public QObject, public ChildWatch, public IProgress {
  Q_OBJECT

 public:
  explicit WorkWatch(OutputSink& sink);

  /// The widget that gets input all the same, with what lies in it. Not owned.
  void setCancelWidget(QWidget* widget) { m_cancelWidget = widget; }
  /// The window that says that a provider does not answer; the same for it. Not owned.
  void setNotice(QWidget* widget) { m_notice = widget; }
  /// How long a call of the provider lasts until `providerHangs` tells of it.
  void setPatience(std::chrono::milliseconds patience) { m_patience = patience; }
  /// Makes the provider's calls; for the host.
  CSignal2Exception& providerCalls() { return m_provider; }
  bool isWorking() const { return m_isWorking; }
  BatchResults& results() { return m_results; }
  /// Throws away what was typed and clicked since the last unit; for the end of a command.
  void discardInput();
  /// What the user asks for by cancelling; also lets the running child be ended.
  void cancel();

  // --- ChildWatch ---
  void printed(std::string_view bytes) override { m_sink.showLive(bytes); }
  void waiting() override { pump(); }
  // --- IProgress ---
  void unitStarted(const ProgressStep& step) override;
  void unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words) override;
  void providerCallStarted(const char* entryPoint) override;
  void providerCallEnded() override;
  bool isCancelled() override;

 signals:
  void workStarted();
  void stepChanged(const veldra::ProgressStep& step);
  void cancelled();
  /// The provider is called in that function; empty when it has returned.
  void providerCalled(const QString& entryPoint);
  /// It has been in that function for so long, told once a second.
  void providerHangs(const QString& entryPoint, int seconds);
  /// The ordinary event loop runs again.
  void workEnded();

 private:
  void pump();
  void rest();
  void waitForProvider();
  bool isInNotice(const QObject& watched) const;
  bool mayPass(const QObject& watched, const QEvent& event);

  OutputSink& m_sink;
  BatchResults m_results;
  ProviderThread m_provider{[this] { waitForProvider(); }};
  std::chrono::milliseconds m_patience = ProviderWatch::Patience;
  QElapsedTimer m_callClock;
  QString m_entryPoint;  ///< Of the call under way.
  int m_toldSeconds = 0;
  QPointer<QWidget> m_cancelWidget;
  QPointer<QWidget> m_notice;
  QTimer m_restTimer;
  bool m_isPumping = false;
  bool m_isWorking = false;
  bool m_isCancelled = false;
};

}  // namespace veldra::host::desktop
