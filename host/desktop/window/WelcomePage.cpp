#include "host/desktop/window/WelcomePage.h"

#include <QCommandLinkButton>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "host/desktop/Text.h"
#include "host/desktop/window/Icons.h"
#include "host/model/PathNames.h"

namespace veldra::host::desktop {
namespace {

QCommandLinkButton* makeLink(const QString& iconName, const QString& text,
                             const QString& description) {
  auto* link = new QCommandLinkButton(text, description);
  link->setIcon(icon(iconName));
  link->setAccessibleDescription(description);
  // Layouts take it for one that could do without its second line.
  link->setMinimumHeight(link->sizeHint().height());
  return link;
}

}  // namespace

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
  auto* open = makeLink("open", tr("&Open Project…"), tr("A folder with a project file"));
  auto* make =
      makeLink("new", tr("&New Project…"), tr("From a folder, with a CM tool and an archive"));
  connect(open, &QPushButton::clicked, this, &WelcomePage::openWanted);
  connect(make, &QPushButton::clicked, this, &WelcomePage::newWanted);
  for (QWidget* widget : std::initializer_list<QWidget*>{title, hint, open, make, m_recent}) {
    layout->addWidget(widget);
  }
  m_recentLayout->setContentsMargins(0, 12, 0, 0);
  outer->setContentsMargins(0, 0, 0, 0);
  // Many recent projects need more room than a small window has.
  auto* page = new QWidget;
  auto* middle = new QGridLayout(page);
  middle->setRowStretch(0, 2);
  middle->setRowStretch(2, 3);
  middle->setColumnStretch(0, 1);
  middle->setColumnStretch(2, 1);
  middle->addWidget(column, 1, 1);
  auto* scroll = new QScrollArea;
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(page);
  outer->addWidget(scroll);
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
    auto* button =
        makeLink("project", shownName(baseName(project)).replace('&', "&&"), shownName(project));
    button->setAccessibleDescription(tr("Opens %1").arg(path));
    connect(button, &QPushButton::clicked, this, [this, path] { emit recentWanted(path); });
    m_recentLayout->addWidget(button);
  }
}

}  // namespace veldra::host::desktop
