#include "host/desktop/window/ProviderNotice.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "cm/templates/CMProperty.h"
#include "host/desktop/Text.h"
#include "host/desktop/session/WorkWatch.h"

namespace veldra::host::desktop {
namespace {

// Who has chosen to wait is asked again after this.
constexpr int SecondsBetween = 60;

QString providerName() {
  const std::string name = CMProperty::getSCCToolName();
  return name.empty() ? ProviderNotice::tr("The source control provider") : shownName(name);
}

}  // namespace

ProviderNotice::ProviderNotice(WorkWatch& work, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      m_what(new QLabel) {
  setObjectName("ProviderNotice");
  setWindowModality(Qt::ApplicationModal);
  setWindowTitle(tr("No answer yet"));
  m_what->setTextFormat(Qt::PlainText);
  m_what->setWordWrap(true);
  QFont bold = m_what->font();
  bold.setBold(true);
  m_what->setFont(bold);
  auto* advice = new QLabel(
      tr("It may still answer. The call runs in a library of others and cannot be ended safely: "
         "you can go on waiting, or leave the program. Before it ends everything that you have "
         "changed is saved; whether the provider has done its part, “Refresh Status” shows when "
         "you open the project again."));
  advice->setTextFormat(Qt::PlainText);
  advice->setWordWrap(true);
  auto* buttons = new QDialogButtonBox;
  auto* wait = buttons->addButton(tr("Go On &Waiting"), QDialogButtonBox::RejectRole);
  auto* leave = buttons->addButton(tr("Save and &Leave"), QDialogButtonBox::DestructiveRole);
  wait->setObjectName("Wait");
  wait->setAccessibleDescription(tr("Closes this notice; the call goes on"));
  leave->setObjectName("Leave");
  leave->setAccessibleDescription(tr("Saves what you have changed and ends the program"));
  wait->setDefault(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(m_what);
  layout->addWidget(advice);
  layout->addWidget(buttons);
  setMinimumWidth(480);

  connect(wait, &QPushButton::clicked, this, &ProviderNotice::goOnWaiting);
  connect(leave, &QPushButton::clicked, this, &ProviderNotice::leaveWanted);
  connect(&work, &WorkWatch::providerHangs, this, &ProviderNotice::tell);
  connect(&work, &WorkWatch::providerCalled, this, [this] {
    m_quietUntil = 0;
    hide();
  });
  work.setNotice(this);
}

void ProviderNotice::tell(const QString& entryPoint, int seconds) {
  m_seconds = seconds;
  m_what->setText(tr("%1 has not answered for %n second(s), in its function %2.", nullptr, seconds)
                      .arg(providerName(), entryPoint));
  if (seconds >= m_quietUntil && !isVisible()) show();
}

void ProviderNotice::goOnWaiting() {
  m_quietUntil = m_seconds + SecondsBetween;
  hide();
}

}  // namespace veldra::host::desktop
