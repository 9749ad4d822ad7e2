#include "cm/ui/widgets/CommandWindow.h"

#include <QCloseEvent>
#include <QPointer>
#include <QSettings>
#include <utility>
#include <vector>

#include "cm/ui/Translations.h"
#include "cm/ui/widgets/FailureStrip.h"
#include "cm/ui/widgets/HeldInput.h"
#include "cm/ui/widgets/ProgressStrip.h"

namespace veldra {

namespace {

/// The open windows, the topmost last.
std::vector<CommandWindow*>& openWindows() {
  static std::vector<CommandWindow*> windows;
  return windows;
}

QSettings& windowSettings() {
  static QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("veldra-cm"),
                            QStringLiteral("dialogs"));
  return settings;
}

}  // namespace

CommandWindow::CommandWindow(QString settingsName, QWidget* parent)
    : QDialog(parent), m_placeKey(std::move(settingsName) + QStringLiteral("/geometry")) {
  loadDialogTranslationsOnce();
  openWindows().push_back(this);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  m_progress = new ProgressStrip(this);
  m_failures = new FailureStrip(this);
}

CommandWindow::~CommandWindow() {
  std::erase(openWindows(), this);
}

IProgress* CommandWindow::currentProgress() {
  return openWindows().empty() ? nullptr : openWindows().back()->m_progress;
}

void CommandWindow::keepPainting() {
  ProgressStrip::keepPainting();
}

void CommandWindow::runOnce(const QString& caption, const std::function<void()>& command) {
  if (m_isRunning) return;
  const QPointer<QWidget> focused = focusWidget();
  m_isRunning = true;
  m_failures->tell({}, 0);
  command();
  m_isRunning = false;
  afterCommand();
  m_failures->tell(caption, m_progress->failedFiles().size());
  if (focused != nullptr && focused->isEnabled()) focused->setFocus();
}

void CommandWindow::holdInput(const QString& caption) {
  m_heldInput = std::make_unique<HeldWindow>(*this);
  m_progress->begin(caption);
}

void CommandWindow::releaseInput() {
  m_heldInput.reset();
  m_progress->finish();
}

void CommandWindow::restorePlace(const QSize& firstSize) {
  const QByteArray place = windowSettings().value(m_placeKey).toByteArray();
  if (place.isEmpty() || !restoreGeometry(place)) resize(firstSize);
}

void CommandWindow::reject() {
  if (m_isRunning) return;
  windowSettings().setValue(m_placeKey, saveGeometry());
  QDialog::reject();
}

void CommandWindow::closeEvent(QCloseEvent* event) {
  if (m_isRunning) return event->ignore();
  QDialog::closeEvent(event);
}

}  // namespace veldra
