#include "cm/ui/widgets/ProgressStrip.h"

#include <QCoreApplication>
#include <QHBoxLayout>

#include "cm/ui/ControlIds.h"
#include "cm/ui/logic/ProgressText.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

ProgressStrip::ProgressStrip(QWidget* parent)
    : QWidget(parent), m_text(new QLabel(this)), m_bar(new QProgressBar(this)) {
  control(this, ControlId::Progress, tr("Progress of the command"));
  m_text->setTextFormat(Qt::PlainText);
  m_bar->setTextVisible(false);
  m_bar->setFixedWidth(220);
  m_bar->setMaximumHeight(8);
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_bar);
  layout->addWidget(m_text, 1);
  hide();
}

void ProgressStrip::begin(const QString& command) {
  m_command = command;
  m_bar->setRange(0, 0);
  m_step = tr("%1 is running...").arg(command);
  m_text->setText(m_step);
  m_clock.start();
  show();
  keepPainting();
}

void ProgressStrip::finish() {
  hide();
}

void ProgressStrip::unitStarted(const ProgressStep& step) {
  m_bar->setRange(0, static_cast<int>(step.count));
  m_bar->setValue(static_cast<int>(step.position) - 1);
  QString text = tr("%1: %2 of %3, %4")
                     .arg(m_command, QString::number(step.position), QString::number(step.count),
                          shown(step.unit));
  if (const auto left = secondsLeft(step.position, step.count, m_clock.elapsed())) {
    text += tr(", about %1 s left").arg(*left);
  }
  say(text);
  m_step = text;
  keepPainting();
}

void ProgressStrip::say(const QString& text) {
  m_text->setText(m_text->fontMetrics().elidedText(text, Qt::ElideMiddle, m_text->width()));
  setAccessibleDescription(text);
}

void ProgressStrip::providerCallStarted(const char* entryPoint) {
  if (isHidden()) return;
  say(tr("%1 (provider: %2)").arg(m_step, QString::fromLatin1(entryPoint)));
  m_text->repaint();
}

void ProgressStrip::providerCallEnded() {
  if (!isHidden()) say(m_step);
}

void ProgressStrip::unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words) {
  m_bar->setValue(static_cast<int>(step.position));
  m_results.unitEnded(step, end, words);
  keepPainting();
}

void ProgressStrip::keepPainting() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace veldra
