#include "cm/ui/widgets/CommandWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>
#include <vector>

#include "cm/host/MessageIds.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/Translations.h"
#include "cm/ui/logic/GuardedCall.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/FailureStrip.h"
#include "cm/ui/widgets/HeldInput.h"
#include "cm/ui/widgets/ProgressStrip.h"
#include "cm/ui/widgets/Text.h"

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

bool CommandWindow::isOneAtWork() {
  const std::vector<CommandWindow*>& windows = openWindows();
  return std::any_of(windows.begin(), windows.end(),
                     [](const CommandWindow* window) { return window->m_heldInput != nullptr; });
}

bool CommandWindow::allowsAnother() {
  const bool isAllowed = !isOneAtWork();
  if (!isAllowed) dialogWarning(dialogText(MessageId::CommandStillRuns));
  return isAllowed;
}

void CommandWindow::refreshOthers() const {
  for (CommandWindow* window : openWindows()) {
    if (window == this || window->isAncestorOf(this)) continue;
    QCoreApplication::postEvent(window, new QEvent(static_cast<QEvent::Type>(RefreshMessage)));
  }
}

void CommandWindow::runOnce(const QString& caption, const std::function<void()>& command) {
  if (m_isRunning || !allowsAnother()) return;
  const QPointer<QWidget> focused = focusWidget();
  m_isRunning = true;
  m_isFocusGiven = false;
  m_failures->tell({}, 0);
  m_progress->results().start();
  if (const auto fault = thrownBy(command)) {
    releaseInput();
    dialogError(dialogText(MessageId::InternalError, {bytesOf(caption), *fault}));
  }
  m_isRunning = false;
  afterCommand();
  m_failures->tell(caption, m_progress->results().failedFiles().size());
  const bool isKept = !m_isFocusGiven && focused != nullptr && focused->isEnabled();
  if (isKept) focused->setFocus();
}

void CommandWindow::giveFocus(QWidget& widget) {
  widget.setFocus();
  m_isFocusGiven = true;
}

void CommandWindow::holdInput(const QString& caption) {
  m_heldInput = std::make_unique<HeldWindow>(*this);
  m_progress->begin(caption);
}

void CommandWindow::releaseInput() {
  m_heldInput.reset();
  m_progress->finish();
}

QLabel* CommandWindow::makeEmptyState(const QString& name) {
  auto* const label = control(new QLabel(this), ControlId::EmptyState, name);
  label->setAlignment(Qt::AlignCenter);
  label->setWordWrap(true);
  return label;
}

QVBoxLayout* CommandWindow::layOutColumn() {
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(14, 12, 14, 12);
  column->setSpacing(10);
  return column;
}

void CommandWindow::layOutFoot(QVBoxLayout& column) {
  m_totals = control(new QLabel(this), ControlId::Totals, tr("Totals"));
  auto* const close = control(new QPushButton(tr("&Close"), this), ControlId::Close, tr("Close"));
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &CommandWindow::reject);
  auto* const foot = new QHBoxLayout;
  foot->addWidget(m_totals);
  foot->addWidget(m_progress, 1);
  foot->addStretch();
  foot->addWidget(close);
  column.addWidget(m_failures);
  column.addLayout(foot);
  // It was made before all others, and stands above Close.
  auto* const select = findControl<QPushButton>(*m_failures, ControlId::SelectFailed);
  setTabOrder(close, select);
  setTabOrder(select, close);
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
