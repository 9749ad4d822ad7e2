#include "cm/ui/widgets/FailureStrip.h"

#include <QHBoxLayout>

#include "cm/ui/ControlIds.h"
#include "cm/ui/widgets/Control.h"

namespace veldra {

FailureStrip::FailureStrip(QWidget* parent)
    : QWidget(parent),
      m_text(control(new QLabel(this), ControlId::Failures, tr("Failed units"))),
      m_select(control(new QPushButton(tr("&Select Them"), this), ControlId::SelectFailed,
                       tr("Select the units that failed"))) {
  m_text->setTextFormat(Qt::PlainText);
  m_select->setAutoDefault(false);
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_text);
  layout->addWidget(m_select);
  layout->addStretch(1);
  connect(m_select, &QPushButton::clicked, this, &FailureStrip::selectWanted);
  hide();
}

void FailureStrip::tell(const QString& command, std::size_t count) {
  m_text->setText(
      tr("%1 did not succeed for %n unit(s).", nullptr, static_cast<int>(count)).arg(command));
  setVisible(count > 0);
}

}  // namespace veldra
