#pragma once

#include <QDialog>
#include <QTimer>
#include <QTreeView>
#include <cstdlib>
#include <functional>
#include <string>

#include "cm/ui/CCMDialog.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/ItemWindow.h"
#include "cm/ui/options/CCMDiffDialog.h"
#include "cm/ui/widgets/Control.h"
#include "host/ReferenceHost.h"
#include "host/desktop/session/Questions.h"
#include "host/tandel/window/CompareWindow.h"

namespace veldra::host::desktop {

using Grab = std::function<void(QWidget& widget, const QString& name)>;

/// Somebody else changes two units of the archive and adds one, in a working copy of his own.
[[nodiscard]] inline bool workAsColleague(const std::string& archive, const std::string& copy) {
  const std::string script =
      "svn checkout -q 'file://" + archive + "' '" + copy + "' && cd '" + copy +
      "' && chmod u+w Brewing/Grinder.vcmp Milk/*.vcmp &&"
      " sed -i 's/one portion/two portions/; s/\"direction\": \"in\"/\"direction\": \"out\"/;"
      " s/\"elements\": \\[/&{\"type\": \"Port\", \"name\": \"lid\", \"id\": \"c002\"},/'"
      " Brewing/Grinder.vcmp && sed -i 's/180 ml/200 ml/' 'Milk/Milk Pump.vcmp' &&"
      " sed 's/Milk Pump/Milk Cooler/; s/\"id\": \"..../\"id\": \"c001/' 'Milk/Milk Pump.vcmp'"
      " > 'Milk/Milk Cooler.vcmp' && svn add -q 'Milk/Milk Cooler.vcmp' &&"
      " svn lock -q --force Brewing/Grinder.vcmp 'Milk/Milk Pump.vcmp' &&"
      " svn commit -q -m 'A cooler for the milk'";
  return std::system(script.c_str()) == 0;
}

/// Presses a button of the CM dialog that opens a list of archive entries, and grabs that.
[[nodiscard]] inline bool grabItemWindow(QDialog& dialog, int button, const QString& name,
                                         const Grab& grab) {
  auto* const main = qobject_cast<CCMDialog*>(&dialog);
  if (main == nullptr) return false;
  bool isGrabbed = false;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
    auto* const window = qobject_cast<ItemWindow*>(QApplication::activeModalWidget());
    if (window == nullptr || window->list()->model()->rowCount() == 0) return;
    timer.stop();
    window->list()->setCurrentIndex(window->list()->model()->index(0, 0));
    grab(*window, name);
    isGrabbed = true;
    window->reject();
  });
  timer.start(20);
  return main->runCommand(button) && isGrabbed;
}

inline void grabVersions(const Grab& grab) {
  CCMDiffDialog versions;
  versions.show();
  grab(versions, QStringLiteral("versions"));
}

/// The compare tool on a unit of ours and the same unit of the colleague's.
inline void grabComparison(const std::string& ours, const std::string& theirs, const Grab& grab) {
  ReferenceHost host({});
  MessageBoxes questions;
  tandel::TandelOptions options;
  tandel::CompareSession session({{.name = "Grinder.vcmp", .first = ours, .second = theirs}});
  tandel::CompareWindow window(host, session, options, questions);
  window.show();
  grab(window, QStringLiteral("compare"));
}

}  // namespace veldra::host::desktop
