#include "host/desktop/window/WelcomePage.h"

#include <QCommandLinkButton>
#include <QLabel>
#include <QVBoxLayout>

#include "host/desktop/Text.h"
#include "host/desktop/window/Icons.h"
#include "host/model/PathNames.h"

namespace veldra::host::desktop {

WelcomePage::WelcomePage(QWidget* parent)
    : QWidget(parent), m_recent(new QWidget), m_recentLayout(new QVBoxLayout(m_recent)) {
  auto* outer = new QVBoxLayout(this);
  auto* column = new QWidget;
  column->setMaximumWidth(640);
  column->setMinimumWidth(420);
  auto* layout = new QVBoxLayout(column);
  layout->setSpacing(8);
  auto* title = new QLabel(tr("Version control for models"));
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * 1.9);
  title->setFont(large);
  auto* hint = new QLabel(tr("Open a project, or make one from a folder of model files."));
  hint->setForegroundRole(QPalette::PlaceholderText);
  auto* open = new QCommandLinkButton(tr("&Open Project…"), tr("A folder with a project file"));
  open->setIcon(icon("open"));
  open->setAccessibleDescription(open->description());
  auto* make = new QCommandLinkButton(tr("&New Project…"),
                                      tr("From a folder, with a CM tool and an archive"));
  make->setIcon(icon("new"));
  make->setAccessibleDescription(make->description());
  connect(open, &QPushButton::clicked, this, &WelcomePage::openWanted);
  connect(make, &QPushButton::clicked, this, &WelcomePage::newWanted);
  for (QWidget* widget : std::initializer_list<QWidget*>{title, hint, open, make, m_recent}) {
    layout->addWidget(widget);
  }
  m_recentLayout->setContentsMargins(0, 12, 0, 0);
  outer->addStretch(2);
  outer->addWidget(column, 0, Qt::AlignHCenter);
  outer->addStretch(3);
}

void WelcomePage::showRecent(const std::vector<std::string>& projects) {
  while (QLayoutItem* item = m_recentLayout->takeAt(0)) {
    delete item->widget();
    delete item;
  }
  m_recent->setVisible(!projects.empty());
  m_recentLayout->addWidget(new QLabel(tr("Recent projects")));
  for (const std::string& project : projects) {
    const QString path = shown(project);
    auto* button = new QCommandLinkButton(shown(baseName(project)).replace('&', "&&"), path);
    button->setIcon(icon("project"));
    button->setAccessibleDescription(tr("Opens %1").arg(path));
    connect(button, &QPushButton::clicked, this, [this, path] { emit recentWanted(path); });
    m_recentLayout->addWidget(button);
  }
}

}  // namespace veldra::host::desktop
