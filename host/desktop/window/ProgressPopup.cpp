#include "host/desktop/window/ProgressPopup.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "cm/ui/CCMDialog.h"
#include "cm/ui/logic/ProgressText.h"
#include "host/desktop/Text.h"
#include "host/desktop/session/WorkWatch.h"
#include "host/model/PathNames.h"

namespace veldra::host::desktop {
namespace {

constexpr int DelayMilliseconds = 400;

QString leftText(std::optional<std::int64_t> left) {
  if (!left) return {};
  const auto seconds = static_cast<int>(*left);
  if (seconds < 60) return ProgressPopup::tr("About %n second(s) left", nullptr, seconds);
  return ProgressPopup::tr("About %n minute(s) left", nullptr, (seconds + 30) / 60);
}

}  // namespace

ProgressPopup::ProgressPopup(WorkWatch& work, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      m_work(work),
      m_operation(new QLabel),
      m_unit(new QLabel),
      m_left(new QLabel),
      m_bar(new QProgressBar),
      m_cancel(new QPushButton(tr("Cancel"))) {
  setWindowModality(Qt::ApplicationModal);
  setWindowTitle(tr("Version control"));
  setMinimumWidth(420);
  for (QLabel* label : {m_operation, m_unit, m_left}) label->setTextFormat(Qt::PlainText);
  QFont bold = m_operation->font();
  bold.setBold(true);
  m_operation->setFont(bold);
  m_bar->setAccessibleName(tr("Progress"));
  m_cancel->setAccessibleDescription(tr("Ends the command after the unit at hand"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(m_operation);
  layout->addWidget(m_unit);
  layout->addWidget(m_bar);
  auto* below = new QHBoxLayout;
  below->addWidget(m_left, 1);
  below->addWidget(m_cancel);
  layout->addLayout(below);

  m_delay.setSingleShot(true);
  m_delay.setInterval(DelayMilliseconds);
  connect(&m_delay, &QTimer::timeout, this, &QDialog::show);
  connect(m_cancel, &QPushButton::clicked, &m_work, &WorkWatch::cancel);
  connect(&m_work, &WorkWatch::workStarted, this, &ProgressPopup::begin);
  connect(&m_work, &WorkWatch::stepChanged, this, &ProgressPopup::showStep);
  connect(&m_work, &WorkWatch::workEnded, this, &ProgressPopup::end);
  connect(&m_work, &WorkWatch::cancelled, this, [this] {
    m_cancel->setEnabled(false);
    m_left->setText(tr("Cancelling…"));
  });
  m_work.setCancelWidget(this);
}

void ProgressPopup::begin() {
  m_clock.start();
  m_cancel->setEnabled(true);
  m_operation->setText(tr("Working…"));
  m_unit->clear();
  m_left->clear();
  m_bar->setRange(0, 0);
  if (!CCMDialog::currentProgress()) m_delay.start();
}

void ProgressPopup::showStep(const ProgressStep& step) {
  if (step.position <= 1) m_clock.restart();
  m_operation->setText(shownName(step.operation));
  const QString name = shownName(baseName(step.unit));
  m_unit->setText(tr("%1 of %2: %3")
                      .arg(step.position)
                      .arg(step.count)
                      .arg(m_unit->fontMetrics().elidedText(name, Qt::ElideMiddle, 340)));
  m_bar->setRange(0, static_cast<int>(step.count));
  m_bar->setValue(static_cast<int>(step.position) - 1);
  if (m_work.isCancelled()) return;
  m_left->setText(leftText(secondsLeft(step.position, step.count, m_clock.elapsed())));
}

void ProgressPopup::end() {
  m_delay.stop();
  hide();
}

void ProgressPopup::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    m_work.cancel();
  } else {
    QDialog::keyPressEvent(event);
  }
}

}  // namespace veldra::host::desktop
